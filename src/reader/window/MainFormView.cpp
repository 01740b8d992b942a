#include "reader/window/MainFormView.h"

#include "advisor/AdvForm.h"
#include "authoring/DelTopicForm.h"
#include "authoring/InfoForm.h"
#include "authoring/LgEdForm.h"
#include "authoring/MoveTopicsForm.h"
#include "authoring/TxEdForm.h"
#include "base/CodePage.h"
#include "base/ItemAt.h"
#include "files/FileForm.h"
#include "forms/ButtonIcons.h"
#include "forms/FormProgress.h"
#include "reader/window/CheckForm.h"
#include "reader/window/Global.h"
#include "reader/window/XrefForm.h"
#include "ui_MainForm.h"

#include <QListView>
#include <QMainWindow>
#include <QScopedValueRollback>

namespace ls {

MainFormView::MainFormView(QMainWindow& form, Ui::MainForm& ui, Global& global, const Seams& seams,
                           const FormSeams& forms)
    : m_form(form), m_ui(ui), m_global(global), m_seams(seams), m_forms(forms),
      m_display(*ui.MsgPic, *ui.VScroll1)
{
    SetUpList();
    SetUpButtons();
}

void MainFormView::SetUpList()
{
    auto* view = new QListView(m_ui.TopicList);
    // Otherwise a popup of 30,000 entries measures each of them.
    view->setUniformItemSizes(true);
    m_ui.TopicList->setView(view);
    m_ui.TopicList->setModel(&m_items);
}

void MainFormView::SetUpButtons()
{
    m_ui.BackButton->setIcon(ButtonIcon(ButtonPicture::ArrowLeft));
    m_ui.NextButton->setIcon(ButtonIcon(ButtonPicture::ArrowRight));
    m_ui.ExplainButton->setIcon(ButtonIcon(ButtonPicture::Globe));
    m_ui.ExplainButton->hide();
    m_ui.XRButton->hide();
    m_ui.AdvisorButton->hide();
}

void MainFormView::SetTopicList(const TopicListModel& model)
{
    const QScopedValueRollback<bool> setting(m_settingList, true);
    m_items.SetItems(model.items);
    m_ui.TopicList->setCurrentIndex(model.selected);
}

void MainFormView::SelectItem(int index)
{
    const QScopedValueRollback<bool> setting(m_settingList, true);
    m_ui.TopicList->setCurrentIndex(index);
}

int MainFormView::SelectedItem() const
{
    return m_ui.TopicList->currentIndex();
}

int MainFormView::ItemCount() const
{
    return m_ui.TopicList->count();
}

TopicListItem MainFormView::Item(int index) const
{
    return *ItemAt(m_items.Items(), index);
}

bool MainFormView::Alphabetic() const
{
    return m_ui.AlphaItem->isChecked();
}

void MainFormView::CheckOrder(bool alphabetic)
{
    m_ui.AlphaItem->setChecked(alphabetic);
    m_ui.ContentsItem->setChecked(!alphabetic);
}

int MainFormView::LineWidthChars() const
{
    return m_display.LineWidthChars();
}

void MainFormView::ShowLines(ShownTopic& shown)
{
    m_ui.AdvisorButton->setVisible(shown.advisorButton);
    m_ui.XRButton->setVisible(shown.xrefButton);
    m_display.Show(shown.lines, m_global.book.BookVersion);
}

void MainFormView::ClearPane()
{
    m_display.ClearDisplay();
    m_ui.XRButton->hide();
    m_ui.AdvisorButton->hide();
}

void MainFormView::ShowExplainButton(bool visible)
{
    m_ui.ExplainButton->setVisible(visible);
}

void MainFormView::ShowTopicControls(bool visible)
{
    m_ui.TopicLabel->setVisible(visible);
    m_ui.TopicList->setVisible(visible);
    m_ui.GoToButton->setVisible(visible);
    m_ui.ExportItem->setVisible(visible);
    m_ui.NextItem->setVisible(visible);
    m_ui.PrevTopic->setVisible(visible);
    m_ui.IndexMenu->menuAction()->setVisible(visible);
}

void MainFormView::SetDefault(DefaultButton button)
{
    m_ui.GoToButton->setDefault(button == DefaultButton::GoTo);
    m_ui.DoneButton->setDefault(button == DefaultButton::Done);
}

void MainFormView::ShowFileForm()
{
    FileForm(&m_form, m_global.fileDialog, m_global.book, m_global.settings, m_seams, m_forms).Run();
}

void MainFormView::ShowAdvForm()
{
    AdvForm(&m_form, m_global.book, m_global.advisor, m_seams).Run();
}

void MainFormView::ShowXrefForm()
{
    XrefForm(&m_form, m_global.book, m_seams).exec();
}

void MainFormView::ShowDelTopicForm()
{
    DelTopicForm(&m_form, m_global.book, m_global.topicFlags, Alphabetic()).exec();
}

void MainFormView::ShowMoveTopicsForm()
{
    MoveTopicsForm(&m_form, m_global.book, m_global.topicFlags, m_seams).exec();
}

bool MainFormView::ShowTxEdForm()
{
    return TxEdForm(&m_form, m_global.book, m_seams).exec() == QDialog::Accepted;
}

bool MainFormView::ShowLgEdForm()
{
    LgEdForm editor(&m_form, m_global.book, m_seams);
    return editor.Form_Load() && editor.exec() == QDialog::Accepted;
}

void MainFormView::ShowInfoForm()
{
    InfoForm(&m_form, m_global.book, m_seams).exec();
}

std::unique_ptr<Progress> MainFormView::WatchScan()
{
    const std::string name = FromPath(NameOf(m_seams.paths, m_global.book.BookPath));
    ProgressBox box;
    box.label = QStringLiteral("Reading %1").arg(QString::fromStdString(name));
    box.canCancel = false;
    return std::make_unique<FormProgress>(&m_form, box);
}

std::unique_ptr<Progress> MainFormView::WatchCheck()
{
    const std::string name = FromPath(NameOf(m_seams.paths, m_global.book.BookPath));
    ProgressBox box;
    box.label = QStringLiteral("Checking %1").arg(QString::fromStdString(name));
    return std::make_unique<FormProgress>(&m_form, box);
}

std::optional<std::size_t> MainFormView::ShowCheckForm(const CheckedBook& checked)
{
    CheckForm check(&m_form, checked);
    check.exec();
    return check.Chosen();
}

std::unique_ptr<Progress> MainFormView::WatchSave(const std::string& path)
{
    ProgressBox box;
    const std::string name = FromPath(NameOf(m_seams.paths, path));
    box.label = QStringLiteral("Writing %1").arg(QString::fromStdString(name));
    return std::make_unique<FormProgress>(&m_form, box);
}

} // namespace ls
