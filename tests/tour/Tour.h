#pragma once

#include <QDir>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <initializer_list>

class QComboBox;
class QScrollBar;
class QWidget;

namespace ls {

class ReadingPane;

/// A walk through the main window on a real display: each step works the controls as a user does, by mouse
/// and keys, looks whether the window shows what it should, and takes a picture of it.
class Tour
{
public:
    /// The window is on show; pictures go into the folder, which exists.
    Tour(QWidget& window, const QDir& pictures);

    /// Takes all steps. Each is reported in a line on standard output; the first that fails ends the tour.
    [[nodiscard]] bool Take();

    /// The same for a book that opened on a topic with an advisor: answers its questions, "? - unsure" where
    /// that is offered and the first value elsewhere, until there is an advice; then looks at the editor of
    /// its logic.
    [[nodiscard]] bool TakeAdvisor();

private:
    /// What a step found wrong; empty when all is well.
    using Fault = QString;

    struct Step
    {
        const char* name; ///< as in the picture's file name
        Fault (Tour::*take)();
    };

    Fault FindControls();
    Fault LookAtOpenBook();
    Fault PickTopic();
    Fault GoToPickedTopic();
    Fault ShowNextTopic();
    Fault ScrollByPage();
    Fault ScrollToEnd();
    Fault OpenIndexMenu();
    Fault SortByAlphabet();
    Fault SortByContents();
    Fault WidenWindow();

    Fault LookAtAdvisorTopic();
    Fault LookAtQuestion();
    Fault OpenAnswers();
    Fault PickAnswer();
    Fault PressNext();
    Fault LookAtAdvice();
    Fault CloseAdvisor();

    Fault LookAtText();
    Fault MakeBold();
    Fault LookAtEditedTopic();
    Fault CheckTopic();
    Fault PickTopicToMove();
    Fault PickTarget();
    Fault LookAtForm();
    Fault PickReference();

    Fault ChoosePrintMode();

    Fault FindText();
    Fault EnlargeType();

    Fault PressOk();

    Fault LookAtEditor();
    Fault PickVariable();
    Fault PickChoice();
    Fault LookAtSpecification();

    [[nodiscard]] bool TakeAuthor();
    [[nodiscard]] bool TakePrint();
    [[nodiscard]] bool WalkPrint();
    [[nodiscard]] bool TakeFiles();
    [[nodiscard]] bool WalkItem(const char* menu, const char* item, const char* form, bool (Tour::*walk)());
    [[nodiscard]] bool WalkStartOver();
    [[nodiscard]] bool WalkFileForm();
    [[nodiscard]] bool WalkSelector();
    [[nodiscard]] bool WalkTitle();
    [[nodiscard]] bool TakeCheck();
    [[nodiscard]] bool WalkCheck();
    [[nodiscard]] bool TakeFind();
    [[nodiscard]] bool TakeRecovery();
    [[nodiscard]] bool WalkRecovery();
    [[nodiscard]] bool WalkEditItem(const char* item, const char* form, bool (Tour::*walk)());
    [[nodiscard]] bool WalkTextEditor();
    [[nodiscard]] bool WalkRemoval();
    [[nodiscard]] bool WalkMove();
    [[nodiscard]] bool WalkProperties();
    [[nodiscard]] bool WalkReferences();
    [[nodiscard]] bool WalkAdvisor();
    [[nodiscard]] bool TakeLogicEditor();
    [[nodiscard]] bool WalkEditor();
    [[nodiscard]] bool WalkSpecification();
    [[nodiscard]] bool WalkForm(const char* name, const std::function<Fault()>& open, bool (Tour::*walk)());
    [[nodiscard]] bool TakeSteps(std::initializer_list<Step> steps);
    [[nodiscard]] bool TakeStep(const Step& step, int number);
    [[nodiscard]] static bool Report(const QString& name, const Fault& fault);
    [[nodiscard]] bool SavePicture(const QString& name) const;
    void LookForBox() const;

    [[nodiscard]] Fault Press(const char* button) const;
    [[nodiscard]] Fault PressInForm(const char* button) const;
    [[nodiscard]] static Fault OpenMenu(const QWidget& window, const char* name);
    [[nodiscard]] Fault OpenMenu(const char* name) const { return OpenMenu(m_window, name); }
    [[nodiscard]] static Fault ClickItem(const QWidget& window, const char* menu, const char* item);
    [[nodiscard]] Fault Pick(const char* menu, const char* item) const;
    [[nodiscard]] Fault ChooseItem(const char* menu, const char* item) const;
    [[nodiscard]] QStringList Items() const;
    [[nodiscard]] QString BareTitle(const QString& item) const;
    [[nodiscard]] QString Shown() const;

    QWidget& m_window;
    QDir m_pictures;
    QTimer m_boxWatch;
    QPointer<QComboBox> m_list;
    QPointer<QScrollBar> m_bar;
    QPointer<ReadingPane> m_pane;
    QPointer<QWidget> m_form; ///< the topmost form over the window, while one is open
    int m_taken = 0;          ///< steps so far
};

} // namespace ls
