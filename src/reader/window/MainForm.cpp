#include "reader/window/MainForm.h"

#include "base/RunGuarded.h"
#include "browser/About.h"
#include "browser/HelpPages.h"
#include "browser/WebReferral.h"
#include "files/SelectProgram.h"
#include "forms/FormFont.h"
#include "reader/window/CheckItem.h"
#include "reader/window/FitMainForm.h"
#include "reader/window/Global.h"
#include "reader/window/MainFormView.h"
#include "reader/window/PrintItem.h"
#include "reader/window/StartUp.h"
#include "render/html/ExportItem.h"
#include "render/print/PrtForm.h"
#include "ui_MainForm.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <utility>

namespace ls {

namespace {

constexpr const char* HelpPage = "Lodestar_Reader.htm";
constexpr int AfterResizeMilliseconds = 60; // after the last resize, until the topic is wrapped again

} // namespace

MainForm::MainForm(Global& global, const Seams& seams, const FormSeams& forms)
    : m_ui(std::make_unique<Ui::MainForm>()), m_global(global), m_seams(seams), m_forms(forms),
      m_layout(*m_ui, SetUpUi()),
      m_view(std::make_unique<MainFormView>(*this, *m_ui, global, m_seams, forms)),
      m_navigation(global.book, m_seams, *m_view),
      m_commands(global.book, global.settings, global.fileDialog, m_seams, *m_view, m_navigation),
      m_save(global.book, global.settings, global.fileDialog, m_seams, *m_view, m_commands),
      m_topicCommands(global.book, global.topicFlags, m_seams, *m_view, m_navigation),
      m_editCommands(global.book, m_seams, *m_view, m_navigation),
      m_paneCommands(
          *m_ui, [this] { TypeSize_Change(); }, [this] { FindBar_Change(); })
{
    ConnectButtons();
    ConnectItems();
    m_afterResize.setSingleShot(true);
    m_afterResize.setInterval(AfterResizeMilliseconds);
    connect(&m_afterResize, &QTimer::timeout, this, &MainForm::ShowAgain);
    m_ui->centralwidget->installEventFilter(this);
    m_ui->TopicList->installEventFilter(this);
    m_ui->TopicList->view()->viewport()->installEventFilter(this);
}

MainForm::~MainForm() = default;

// The form is designed by the size of its inner area; the menus are added on top.
QSize MainForm::SetUpUi()
{
    setFont(FormFont());
    m_ui->setupUi(this);
    const QSize inner = FitMainForm(*m_ui, size());
    resize(inner + QSize(0, m_ui->menubar->sizeHint().height()));
    return inner;
}

void MainForm::ConnectButtons()
{
    OnClick(m_ui->GoToButton, [this] { m_navigation.GoToButton_Click(); });
    OnClick(m_ui->BackButton, [this] { m_navigation.PrevTopic_Click(); });
    OnClick(m_ui->NextButton, [this] { m_navigation.NextItem_Click(); });
    OnClick(m_ui->AdvisorButton, [this] { m_navigation.AdvisorButton_Click(); });
    OnClick(m_ui->XRButton, [this] { m_navigation.XRButton_Click(); });
    OnClick(m_ui->ExplainButton, [this] { ExplainButton_Click(); });
    connect(m_ui->DoneButton, &QAbstractButton::clicked, this, &MainForm::DoneButton_Click);
    connect(m_ui->TopicList, &QComboBox::currentIndexChanged, this, &MainForm::TopicList_Change);
    connect(m_ui->TopicList, &QComboBox::activated, this, &MainForm::TopicList_Change);
    connect(m_ui->VScroll1, &QAbstractSlider::valueChanged, this,
            [this] { Run([this] { m_view->VScroll1_Change(); }); });
}

void MainForm::ConnectItems()
{
    OnClick(m_ui->NewItem, [this] { m_commands.NewItem_Click(); });
    OnClick(m_ui->OpenItem, [this] { m_commands.OpenItem_Click(); });
    OnClick(m_ui->SaveItem, [this] { m_save.SaveItem_Click(); });
    OnClick(m_ui->AddTopicItem, [this] { m_topicCommands.AddTopicItem_Click(); });
    OnClick(m_ui->DelTopicItem, [this] { m_topicCommands.DelTopicItem_Click(); });
    OnClick(m_ui->ReorderItem, [this] { m_topicCommands.ReorderItem_Click(); });
    OnClick(m_ui->EdTextItem, [this] { m_editCommands.EdTextItem_Click(); });
    OnClick(m_ui->AdviceEdItem, [this] { m_editCommands.AdviceEdItem_Click(); });
    OnClick(m_ui->EditPropertiesOption, [this] { m_editCommands.EditPropertiesOption_Click(); });
    OnClick(m_ui->NextItem, [this] { m_navigation.NextItem_Click(); });
    OnClick(m_ui->PrevTopic, [this] { m_navigation.PrevTopic_Click(); });
    OnClick(m_ui->PrintItem, [this] { PrintItem_Click(); });
    OnClick(m_ui->ExportItem, [this] { ExportItem_Click(m_global.book, m_seams); });
    OnClick(m_ui->CheckItem, [this] { CheckItem_Click(m_global.book, m_seams, *m_view, m_navigation); });
    OnClick(m_ui->AlphaItem, [this] { m_navigation.AlphaItem_Click(); });
    OnClick(m_ui->ContentsItem, [this] { m_navigation.ContentsItem_Click(); });
    OnClick(m_ui->GoBackItem, [this] { m_navigation.GoBackItem_Click(); });
    OnClick(m_ui->GoForwardItem, [this] { m_navigation.GoForwardItem_Click(); });
    OnClick(m_ui->HelpItem, [this] { HelpItem_Click(); });
    OnClick(m_ui->AboutItem, [this] { ShowAbout(m_global.book, m_seams); });
    connect(m_ui->PickTopicItem, &QAction::triggered, this, [this] { m_ui->TopicList->setFocus(); });
    connect(m_ui->ExitItem, &QAction::triggered, this, &MainForm::DoneButton_Click);
    m_ui->HelpItem->setEnabled(HasHelpPage(HelpPage, m_seams));
}

void MainForm::OnClick(QAbstractButton* button, const std::function<void()>& command)
{
    connect(button, &QAbstractButton::clicked, this, [this, command] { Run(command); });
}

void MainForm::OnClick(QAction* item, const std::function<void()>& command)
{
    connect(item, &QAction::triggered, this, [this, command] { Run(command); });
}

// Runs a command; every command goes through here. A command does nothing while another one is running, for
// example with its box open. Afterwards a resize that came meanwhile is handled, and if a fault ended the
// program the window closes.
void MainForm::Run(const std::function<void()>& command)
{
    if (m_running) {
        return;
    }
    {
        const QScopedValueRollback<bool> running(m_running, true);
        RunGuarded(command, m_seams);
    }
    EnableHistory();
    Q_EMIT CommandDone();
    if (m_seams.end.Ended()) {
        close();
    }
    if (std::exchange(m_resizedMeanwhile, false)) {
        m_afterResize.start();
    }
}

void MainForm::EnableHistory()
{
    m_ui->GoBackItem->setEnabled(m_navigation.CanGoBack());
    m_ui->GoForwardItem->setEnabled(m_navigation.CanGoForward());
}

void MainForm::Form_Load(const CommandLine& commandLine, const std::function<bool()>& recover)
{
    Run([&] { StartUp(m_global, m_seams, commandLine, m_commands, recover); });
}

void MainForm::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (!m_activated) {
        m_activated = true;
        QTimer::singleShot(0, this, &MainForm::Form_Activate);
    }
}

void MainForm::Form_Activate()
{
    const Book& book = m_global.book;
    // Recovered edits may belong to a new book, which is not open.
    if (!book.IsOpen() && !book.BookChanged) {
        Run([this] { m_commands.OpenItem_Click(); });
    }
}

void MainForm::closeEvent(QCloseEvent* event)
{
    bool mayLeave = m_seams.end.Ended();
    if (!mayLeave) {
        Run([&] { mayLeave = m_commands.MayLeave(); });
    }
    event->setAccepted(mayLeave);
}

void MainForm::Form_Resize()
{
    m_layout.Form_Resize();
    m_afterResize.start();
}

void MainForm::FindBar_Change()
{
    m_layout.Form_Resize();
    Run([this] { m_view->PaneHeight_Change(); });
}

// Keeps the place in the text and the focus.
void MainForm::TypeSize_Change()
{
    Run([this] { m_view->KeepPlace([this] { m_navigation.ShowAgain(); }); });
}

// Runs at the end of a burst of resizes. While a box, a form or a list is open, it waits until that is
// closed.
void MainForm::ShowAgain()
{
    if (m_running) {
        m_resizedMeanwhile = true;
        return;
    }
    if (QApplication::activePopupWidget() != nullptr) {
        m_afterResize.start();
        return;
    }
    m_ui->DoneButton->setFocus();
    Run([this] { m_view->KeepSelection([this] { m_navigation.ShowAgain(); }); });
}

void MainForm::PrintItem_Click()
{
    ls::PrintItem_Click(m_global.book, m_global.print, m_forms.printer, m_seams,
                        [this] { PrtForm(this, m_global.print, m_global.book, m_seams, m_forms).exec(); });
}

void MainForm::ExplainButton_Click()
{
    ShowWebReferral(m_global.book, m_seams, m_forms.registry, m_global.book.CurrentTopicName);
}

void MainForm::HelpItem_Click()
{
    ShowHelpPage(HelpPage, m_seams, m_forms.registry, [this](const std::string& startPath) {
        return SelectProgram(this, m_seams, m_forms, m_global.book.WorkDir, startPath);
    });
}

void MainForm::TopicList_Change()
{
    if (!m_view->SettingList()) {
        Run([this] { m_navigation.TopicList_Change(); });
    }
}

void MainForm::TopicList_DblClick()
{
    m_ui->TopicList->hidePopup();
    Run([this] { m_navigation.GoToButton_Click(); });
}

bool MainForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->centralwidget) {
        if (event->type() == QEvent::Resize) {
            Form_Resize();
        }
        return false;
    }
    return FilterList(watched, event);
}

// Without the focus the list ignores the wheel, which would choose another topic and so empty the pane.
bool MainForm::FilterList(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        TopicList_DblClick();
        return true;
    }
    return event->type() == QEvent::Wheel && watched == m_ui->TopicList && !m_ui->TopicList->hasFocus();
}

// Enter presses the default button, unless a button has the focus and takes the key. From any control the
// page keys scroll the topic and Escape closes the find bar.
void MainForm::keyPressEvent(QKeyEvent* event)
{
    QPushButton* const byDefault = m_ui->GoToButton->isDefault() ? m_ui->GoToButton : m_ui->DoneButton;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (byDefault->isVisible()) {
            byDefault->click();
        }
        break;
    case Qt::Key_PageUp:
        m_ui->VScroll1->triggerAction(QAbstractSlider::SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        m_ui->VScroll1->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    case Qt::Key_Escape:
        m_ui->FindBar->Close();
        break;
    default:
        QMainWindow::keyPressEvent(event);
        break;
    }
}

} // namespace ls
