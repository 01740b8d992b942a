#include "files/FileForm.h"

#include "authoring/InfoForm.h"
#include "base/DdeServer.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "browser/HelpPages.h"
#include "files/FileDialog.h"
#include "files/FileFormRules.h"
#include "files/FitFileForm.h"
#include "files/OpenForm.h"
#include "files/PathText.h"
#include "files/SelectProgram.h"
#include "forms/ButtonIcons.h"
#include "forms/FormFont.h"
#include "forms/Mnemonic.h"
#include "ui_FileForm.h"

#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace ls {

namespace {

constexpr int TimerMilliseconds = 10;
constexpr const char* HelpPage = "Lodestar_Open.htm";
constexpr QStringView TakenLetters = u"BUSLOCI"; // taken by captions that the form always has

} // namespace

FileForm::FileForm(QWidget* parent, FileDialog& dialog, Book& book, const Settings& settings,
                   const Seams& seams, const FormSeams& forms)
    : QDialog(parent), m_ui(std::make_unique<Ui::FileForm>()), m_dialog(dialog), m_book(book), m_seams(seams),
      m_forms(forms), m_timer1(new QTimer(this))
{
    setFont(FormFont());
    m_ui->setupUi(this);
    resize(FitFileForm(*m_ui, size()));
    setModal(true);
    m_ui->HelpButton->setIcon(ButtonIcon(ButtonPicture::QuestionMark));
    m_timer1->setObjectName(QStringLiteral("Timer1"));
    m_timer1->setInterval(TimerMilliseconds);
    m_ui->FilenameBox->setCompleter(
        nullptr); // completion would change a typed name, and take Enter for itself
    ConnectControls();
    Form_Load(settings);
}

FileForm::~FileForm()
{
    m_forms.ddeServer.Stop();
}

void FileForm::ConnectControls()
{
    connect(m_ui->OKButton, &QPushButton::clicked, this, &FileForm::OKButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &FileForm::reject);
    connect(m_ui->BrowseButton, &QPushButton::clicked, this, &FileForm::BrowseButton_Click);
    connect(m_ui->HelpButton, &QPushButton::clicked, this, &FileForm::HelpButton_Click);
    connect(m_ui->InfoButton, &QPushButton::clicked, this, &FileForm::InfoButton_Click);
    connect(m_timer1, &QTimer::timeout, this, &FileForm::Timer1_Timer);
}

void FileForm::Form_Load(const Settings& settings)
{
    m_designWidth = width();
    m_browseLeft = m_ui->BrowseButton->x();
    m_nameWidth = m_ui->FilenameBox->width();
    m_helpLeft = m_ui->HelpButton->x();
    const FileFormView view = LoadFileForm(m_dialog, settings, m_seams);
    setWindowTitle(PathText(view.caption));
    m_ui->TitleLabel->setText(WithMnemonic(PathText(view.title), TakenLetters));
    m_defaultLabel = PathText(view.defaultLabel);
    ShowDefaultFolder();
    m_ui->InfoButton->setVisible(view.showInfo);
    m_ui->HelpButton->setEnabled(HasHelpPage(HelpPage, m_seams));
    if (!view.showSharing) {
        HideSharing();
    }
    for (const std::string& name : view.recentFiles) {
        m_names.push_back(name);
        m_ui->FilenameBox->addItem(PathText(name));
    }
    SetName(view.fileName);
    m_ui->FilenameBox->lineEdit()->selectAll();
    m_ui->FilenameBox->setFocus();
    m_remote.Reset();
    // Starting may fail: another program may use the name, or the system may offer no such link. The form
    // works without it.
    m_forms.ddeServer.Start([this](const std::string& command) { return Form_LinkExecute(command); });
}

// Moves O.K. and Cancel into the place of the frame.
void FileForm::HideSharing()
{
    m_ui->SharingFrame->hide();
    const int gap = m_ui->CancelButton->x() - (m_ui->OKButton->x() + m_ui->OKButton->width());
    const int shift = m_ui->CancelButton->width() + gap;
    for (QWidget* button : {m_ui->OKButton, m_ui->CancelButton}) {
        button->move(button->x() - shift, button->y());
    }
}

void FileForm::Form_Resize()
{
    const int extra = std::max(0, width() - m_designWidth);
    m_ui->BrowseButton->move(m_browseLeft + extra, m_ui->BrowseButton->y());
    m_ui->HelpButton->move(m_helpLeft + extra, m_ui->HelpButton->y());
    m_ui->FilenameBox->resize(m_nameWidth + extra, m_ui->FilenameBox->height());
    for (QWidget* label : {m_ui->TitleLabel, m_ui->DefaultLabel}) {
        label->resize(m_designWidth + extra - 2 * label->x(), label->height());
    }
    ShowDefaultFolder();
}

// Shortens a folder that is too long for the form in its middle; the tool tip then shows it whole.
void FileForm::ShowDefaultFolder()
{
    QLabel& label = *m_ui->DefaultLabel;
    const QString shown = label.fontMetrics().elidedText(m_defaultLabel, Qt::ElideMiddle, label.width());
    label.setText(shown);
    label.setToolTip(shown == m_defaultLabel ? QString() : m_defaultLabel);
}

void FileForm::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (m_designWidth > 0) {
        Form_Resize();
    }
}

void FileForm::SetName(const std::string& name)
{
    m_names.push_back(name);
    m_ui->FilenameBox->setEditText(PathText(name));
}

// A name that the form put into the box and that was not changed keeps its bytes, even if they are no valid
// text.
std::string FileForm::NameInBox() const
{
    const QString text = m_ui->FilenameBox->currentText();
    const auto found = std::find_if(m_names.rbegin(), m_names.rend(),
                                    [&text](const std::string& name) { return PathText(name) == text; });
    return found == m_names.rend() ? PathBytes(text) : *found;
}

void FileForm::OKButton_Click()
{
    if (AcceptFileName(m_dialog, NameInBox(), m_ui->ExclusiveOption->isChecked(), m_book.LockBook, m_seams) ||
        m_seams.end.Ended()) {
        QDialog::accept();
    }
}

// Events still arrive while the selector reads its first folder and is not shown yet. This form must not act
// on them.
void FileForm::ShowSelector()
{
    const QScopedValueRollback<bool> selecting(m_selecting, true);
    OpenForm(this, m_dialog, m_seams, m_forms.volumes, m_book.WorkDir).exec();
}

void FileForm::reject()
{
    if (!m_selecting) {
        QDialog::reject();
    }
}

void FileForm::BrowseButton_Click()
{
    m_dialog.ChosenFullPath = m_dialog.SearchSpec;
    ShowSelector();
    if (m_seams.end.Ended()) {
        reject();
        return;
    }
    std::string name = NameInBox();
    TakeBrowsedFile(m_dialog, name, m_seams);
    SetName(name);
}

void FileForm::HelpButton_Click()
{
    ShowHelpPage(HelpPage, m_seams, m_forms.registry, [this](const std::string& startPath) {
        const QScopedValueRollback<bool> selecting(m_selecting, true);
        return SelectProgram(this, m_seams, m_forms, m_book.WorkDir, startPath);
    });
    if (m_seams.end.Ended()) {
        reject();
    }
}

void FileForm::InfoButton_Click()
{
    InfoForm(this, m_book, m_seams).exec();
    if (m_seams.end.Ended()) {
        reject();
    }
}

bool FileForm::Form_LinkExecute(const std::string& command)
{
    const bool accepted = m_remote.LinkExecute(command);
    if (accepted) { // a refused command must not delay the pending one
        m_timer1->start();
    }
    return accepted;
}

// Whether the form can take a click: it is shown and enabled, and no box or form is open above it.
bool FileForm::Ready() const
{
    return isVisible() && isEnabled() && !m_selecting && QApplication::activeModalWidget() == this;
}

void FileForm::Timer1_Timer()
{
    m_timer1->stop();
    switch (m_remote.Timer(Ready(), m_seams.messages)) {
    case RemoteCommands::Action::PushOk:
        OKButton_Click();
        break;
    case RemoteCommands::Action::PushCancel:
        reject();
        break;
    case RemoteCommands::Action::PushBrowse:
        BrowseButton_Click();
        break;
    case RemoteCommands::Action::Beep:
        QApplication::beep();
        break;
    case RemoteCommands::Action::None:
        break;
    }
}

void FileForm::Run()
{
    if (!m_seams.end.Ended()) {
        exec();
    }
}

} // namespace ls
