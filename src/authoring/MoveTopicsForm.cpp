#include "authoring/MoveTopicsForm.h"

#include "authoring/TopicChoices.h"
#include "authoring/TopicFlags.h"
#include "authoring/TopicTable.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "ui_MoveTopicsForm.h"

#include <utility>

namespace ls {

namespace {

// Each item is made first and then added: for an item that is made with its list, the toolkit searches the
// whole list, which is slow for thousands.
void Fill(QListWidget& list, const std::vector<TopicListItem>& topics)
{
    for (const TopicListItem& topic : topics) {
        auto item = std::make_unique<QListWidgetItem>(ShownBookText(topic.text));
        item->setData(Qt::UserRole, topic.itemData);
        list.addItem(item.release()); // owned by the list from here on
    }
}

// The numbers of the selected entries. Asking each entry whether it is selected, or for its row, would search
// the list each time, which is slow for thousands.
std::vector<int> SelectedTopics(const QListWidget& list)
{
    std::vector<int> numbers;
    for (const QListWidgetItem* item : list.selectedItems()) {
        numbers.push_back(item->data(Qt::UserRole).toInt());
    }
    return numbers;
}

} // namespace

MoveTopicsForm::MoveTopicsForm(QWidget* parent, Book& book, TopicFlags& flags, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::MoveTopicsForm>()), m_book(book), m_flags(flags),
      m_seams(seams)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->DoneButton, &QPushButton::clicked, this, &MoveTopicsForm::DoneButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &MoveTopicsForm::reject);
    connect(m_ui->MoveToList, &QListWidget::itemDoubleClicked, this, &MoveTopicsForm::DoneButton_Click);
    Form_Load();
}

MoveTopicsForm::~MoveTopicsForm() = default;

void MoveTopicsForm::Form_Load()
{
    m_flags.TopicsRearranged = false;
    m_movable = MovableTopics(m_book);
    Fill(*m_ui->MoveFromList, m_movable);
    if (m_movable.empty()) {
        m_ui->DoneButton->hide();
        m_ui->InstructionLabel->setText(QStringLiteral("There are no topics available to move."));
    }
}

void MoveTopicsForm::DoneButton_Click()
{
    if (m_selected.empty()) {
        TakeTopics();
    } else {
        TakeTarget();
    }
}

void MoveTopicsForm::TakeTopics()
{
    std::vector<int> selected = SelectedTopics(*m_ui->MoveFromList);
    if (const std::string refusal = SelectionRefusal(m_movable, selected); !refusal.empty()) {
        Refuse(refusal);
        return;
    }
    m_selected = std::move(selected);
    Fill(*m_ui->MoveToList, MoveTargets(m_movable, m_selected));
    m_ui->MoveFromList->hide();
    m_ui->MoveToList->show();
    m_ui->MoveToList->setFocus();
    m_ui->InstructionLabel->setBuddy(m_ui->MoveToList);
    m_ui->InstructionLabel->setText(
        QStringLiteral("Step 2: &Pick the topic that the item(s) will be moved after."));
    m_ui->DoneButton->setText(QStringLiteral("&Done"));
}

void MoveTopicsForm::TakeTarget()
{
    const std::vector<int> targets = SelectedTopics(*m_ui->MoveToList);
    if (targets.empty()) {
        Refuse("You must select a topic");
        return;
    }
    MoveTopics(m_book, m_selected, targets.front());
    m_flags.TopicsRearranged = true;
    accept();
}

void MoveTopicsForm::Refuse(const std::string& message)
{
    m_seams.messages.MsgBox(message, Icon::Exclamation);
    if (m_seams.end.Ended()) {
        reject();
    }
}

} // namespace ls
