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

/// A tour through the main window on a real display. Each step uses the controls by mouse and keys, as a user
/// does, checks what the window shows, and takes a picture of it.
class Tour
{
public:
    /// The window must be visible and the folder for the pictures must exist.
    Tour(QWidget& window, const QDir& pictures);

    /// Takes all steps and prints a line for each. The first failure ends the tour.
    [[nodiscard]] bool Take();

    /// The same for a book that opened on a topic with an advisor. Answers its questions, by "? - unsure" or
    /// else by the first value, until there is an advice; then visits the editor of its logic.
    [[nodiscard]] bool TakeAdvisor();

private:
    /// What is wrong; empty if the step succeeded.
    using Fault = QString;

    struct Step
    {
        const char* name; ///< part of the picture's file name
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
    QPointer<QWidget> m_form; ///< the topmost open form over the window
    int m_taken = 0;          ///< the number of steps so far
};

} // namespace ls
