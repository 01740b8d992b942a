#pragma once

#include "base/FormSeams.h"
#include "base/Seams.h"
#include "files/RemoteCommands.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <vector>

namespace Ui {
class FileForm;
}

namespace ls {

struct Book;
struct FileDialog;
struct Settings;

/// The file form: asks for the name of a book to open or to save. Its Browse button shows the file selector,
/// `OpenForm`. While the form is shown, other programs can press its buttons.
class FileForm : public QDialog
{
    Q_OBJECT

public:
    /// Takes its inputs from `dialog` and puts the results there. If the form asks about sharing, that answer
    /// goes into `book.LockBook`.
    FileForm(QWidget* parent, FileDialog& dialog, Book& book, const Settings& settings, const Seams& seams,
             const FormSeams& forms);
    ~FileForm() override;

    /// Shows the form until it is closed. If a fault ended the program while the form loaded, it is not
    /// shown.
    void Run();

public Q_SLOTS:
    void accept() override { OKButton_Click(); }
    void reject() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectControls();
    void Form_Load(const Settings& settings);
    void HideSharing();
    void Form_Resize();
    void ShowDefaultFolder();
    void OKButton_Click();
    void BrowseButton_Click();
    void HelpButton_Click();
    void ShowSelector();
    void InfoButton_Click();
    bool Form_LinkExecute(const std::string& command);
    void Timer1_Timer();
    [[nodiscard]] bool Ready() const;
    [[nodiscard]] std::string NameInBox() const;
    void SetName(const std::string& name);

    std::unique_ptr<Ui::FileForm> m_ui;
    FileDialog& m_dialog;
    Book& m_book;
    Seams m_seams;
    FormSeams m_forms;
    RemoteCommands m_remote;
    QTimer* m_timer1;
    std::vector<std::string> m_names; ///< names in the list and in the box, in the system's bytes
    bool m_selecting = false;         ///< the file selector is loading or shown
    int m_designWidth = 0;
    int m_browseLeft = 0;
    int m_nameWidth = 0;
    int m_helpLeft = 0;
    QString m_defaultLabel;
};

} // namespace ls
