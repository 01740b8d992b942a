#include "files/OpenForm.h"

#include "base/ProgramEnd.h"
#include "files/FileDialog.h"
#include "files/PathText.h"
#include "files/RunBeside.h"
#include "forms/FormFont.h"
#include "ui_OpenForm.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace ls {

namespace {

QString FolderLabel(const FolderItem& item)
{
    return QString(2 * item.depth, u' ') +
           (item.open ? QStringLiteral("\u25BE ") : QStringLiteral("\u25B8 ")) + PathText(item.label);
}

} // namespace

OpenForm::OpenForm(QWidget* parent, FileDialog& dialog, const Seams& seams, Volumes& volumes,
                   const std::string& workDir)
    : QDialog(parent), m_ui(std::make_unique<Ui::OpenForm>()), m_dialog(dialog), m_seams(seams),
      m_selector(seams, volumes, dialog.FileMode, workDir)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    m_ui->DirsBox->setModel(&m_folders);
    m_ui->FileListBox->setModel(&m_files);
    ConnectControls();
    m_dialog.OverwriteConfirmed = false;
    m_selector.ReadFoldersBy(RunBeside);
    m_selector.Load(m_dialog.ChosenFullPath);
    ShowSelector();
}

OpenForm::~OpenForm() = default;

void OpenForm::ConnectControls()
{
    connect(m_ui->OKButton, &QPushButton::clicked, this, &OpenForm::OKButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &OpenForm::reject);
    connect(m_ui->DriveDropDown, &QComboBox::activated, this, &OpenForm::DriveDropDown_Change);
    connect(m_ui->DirsBox, &QListView::clicked, this,
            [this](const QModelIndex& at) { DirsBox_Click(at.row()); });
    connect(m_ui->DirsBox, &QListView::activated, this,
            [this](const QModelIndex& at) { DirsBox_Enter(at.row()); });
    connect(m_ui->FileListBox->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& at) { FileListBox_Click(at.row()); });
    connect(m_ui->FileListBox, &QListView::clicked, this,
            [this](const QModelIndex& at) { FileListBox_Click(at.row()); });
    connect(m_ui->FileListBox, &QListView::doubleClicked, this,
            [this](const QModelIndex& at) { FileListBox_DblClick(at.row()); });
}

// Shows the selector's lists. Filling them is not a choice of the user.
void OpenForm::ShowSelector()
{
    const QSignalBlocker drives(m_ui->DriveDropDown);
    const QScopedValueRollback<bool> filling(m_filling, true);
    m_ui->DriveDropDown->clear();
    for (const std::string& label : m_selector.Drives()) {
        m_ui->DriveDropDown->addItem(PathText(label));
    }
    m_ui->DriveDropDown->setCurrentIndex(m_selector.CurrentDrive());

    QStringList folders;
    int current = 0;
    for (const FolderItem& item : m_selector.Folders()) {
        current = item.open ? static_cast<int>(folders.size()) : current;
        folders.append(FolderLabel(item));
    }
    m_folders.setStringList(folders);
    m_ui->DirsBox->setCurrentIndex(m_folders.index(current));

    m_files.Show(m_selector.Files());
    ShowText();
}

void OpenForm::ShowText()
{
    m_ui->TextBox->setText(PathText(m_selector.Text()));
}

void OpenForm::FinishIf(OpenFormRules::Outcome outcome)
{
    if (m_seams.end.Ended()) {
        reject();
        return;
    }
    ShowSelector();
    if (outcome == OpenFormRules::Outcome::Accepted) {
        m_dialog.ChosenFullPath = m_selector.ChosenFullPath();
        m_dialog.OverwriteConfirmed = m_selector.OverwriteConfirmed();
        QDialog::accept();
    }
}

// A path that the user did not change keeps its bytes. The box would alter a name that is no valid text.
void OpenForm::OKButton_Click()
{
    const QString text = m_ui->TextBox->text();
    FinishIf(m_selector.OkClicked(text == PathText(m_selector.Text()) ? m_selector.Text() : PathBytes(text)));
}

void OpenForm::DriveDropDown_Change(int index)
{
    m_selector.DriveChanged(index);
    ShowSelector();
}

// One click shows the folder. The second click of a double click falls on the new list and does nothing.
void OpenForm::DirsBox_Click(int row)
{
    if (m_sinceFolderClick.isValid() && m_sinceFolderClick.elapsed() < QApplication::doubleClickInterval()) {
        return;
    }
    m_sinceFolderClick.start();
    ShowFolder(row);
}

void OpenForm::ShowFolder(int row)
{
    m_selector.FolderClicked(row);
    ShowSelector();
}

// Enter on a folder. A double click calls this too, but its first click has already shown the folder.
void OpenForm::DirsBox_Enter(int row)
{
    if (!m_sinceFolderClick.isValid() ||
        m_sinceFolderClick.elapsed() >= QApplication::doubleClickInterval()) {
        ShowFolder(row);
    }
}

void OpenForm::FileListBox_Click(int row)
{
    if (m_filling) {
        return;
    }
    m_selector.FileClicked(row);
    ShowText();
}

void OpenForm::FileListBox_DblClick(int row)
{
    FinishIf(m_selector.FileDoubleClicked(row));
}

void OpenForm::accept()
{
    OKButton_Click();
}

void OpenForm::reject()
{
    m_selector.Cancel();
    m_dialog.ChosenFullPath.clear();
    QDialog::reject();
}

} // namespace ls
