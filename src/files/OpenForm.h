#pragma once

#include "files/FileListItems.h"
#include "files/OpenFormRules.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QStringListModel>

#include <memory>

namespace Ui {
class OpenForm;
}

namespace ls {

struct FileDialog;

/// The file selector: a path or pattern, a drive list, a folder list and a file list. `FileForm` shows it for
/// its Browse button, `SelectProgram` to pick a program. Its rules are in `OpenFormRules`.
class OpenForm : public QDialog
{
    Q_OBJECT

public:
    /// Starts at `dialog.ChosenFullPath` in the mode `dialog.FileMode`.
    OpenForm(QWidget* parent, FileDialog& dialog, const Seams& seams, Volumes& volumes,
             const std::string& workDir);
    ~OpenForm() override;

public Q_SLOTS:
    void accept() override; ///< O.K., and Enter
    void reject() override; ///< Cancel, Escape and the window's close button

private:
    void ConnectControls();
    void OKButton_Click();
    void DriveDropDown_Change(int index);
    void DirsBox_Click(int row);
    void DirsBox_Enter(int row);
    void ShowFolder(int row);
    void FileListBox_Click(int row);
    void FileListBox_DblClick(int row);
    void ShowSelector();
    void ShowText();
    void FinishIf(OpenFormRules::Outcome outcome);

    std::unique_ptr<Ui::OpenForm> m_ui;
    FileDialog& m_dialog;
    Seams m_seams;
    OpenFormRules m_selector;
    QStringListModel m_folders;
    FileListItems m_files;
    QElapsedTimer m_sinceFolderClick;
    bool m_filling = false; ///< the lists are being filled; a change of row is not the user's choice
};

} // namespace ls
