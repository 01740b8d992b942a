#include "authoring/DelTopicForm.h"

#include "authoring/RunningEdits.h"
#include "authoring/TopicChoices.h"
#include "authoring/TopicFlags.h"
#include "base/CodePage.h"
#include "book/Book.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "ui_DelTopicForm.h"

namespace ls {

DelTopicForm::DelTopicForm(QWidget* parent, Book& book, TopicFlags& flags, bool alphabetic)
    : QDialog(parent), m_ui(std::make_unique<Ui::DelTopicForm>()), m_book(book), m_flags(flags)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &DelTopicForm::OKButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &DelTopicForm::reject);
    Form_Load(alphabetic);
    connect(m_ui->TopicListBox, &QListWidget::itemChanged, this, [this] { Edited(); });
}

DelTopicForm::~DelTopicForm() = default;

// Selects the current topic, the most likely one to be removed. Each item is made first and then added: for
// an item that is made with its list, the toolkit searches the whole list, which is slow for thousands.
void DelTopicForm::Form_Load(bool alphabetic)
{
    QListWidget& list = *m_ui->TopicListBox;
    int current = 0;
    for (const RemovalEntry& entry : RemovalEntries(m_book, alphabetic)) {
        auto item = std::make_unique<QListWidgetItem>(ShownBookText(entry.text));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(entry.checked ? Qt::Checked : Qt::Unchecked);
        item->setData(Qt::UserRole, entry.itemData);
        if (entry.itemData == m_book.CurrentTopicNo) {
            current = list.count();
        }
        list.addItem(item.release()); // owned by the list from here on
    }
    list.setCurrentRow(current);
}

std::vector<RemovalChoice> DelTopicForm::Choices() const
{
    std::vector<RemovalChoice> choices;
    for (int row = 0; row < m_ui->TopicListBox->count(); ++row) {
        const QListWidgetItem* item = m_ui->TopicListBox->item(row);
        choices.push_back({item->data(Qt::UserRole).toInt(), item->checkState() == Qt::Checked});
    }
    return choices;
}

void DelTopicForm::AddRunningEdits(RunningEdits& edits)
{
    for (const RemovalChoice& choice : Choices()) {
        if (choice.removed != m_book.TopicRecs(choice.number).Deleted) {
            edits.removals.push_back({choice.number, m_book.TopicNames(choice.number), choice.removed});
        }
    }
}

void DelTopicForm::OKButton_Click()
{
    SetRemoved(m_book, Choices());
    m_flags.TopicListStale = true;
    accept();
}

} // namespace ls
