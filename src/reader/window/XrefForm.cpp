#include "reader/window/XrefForm.h"

#include "base/CodePage.h"
#include "base/ItemAt.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "book/XrefLists.h"
#include "forms/ButtonIcons.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "ui_XrefForm.h"

#include <utility>

namespace ls {

namespace {

// Fills a list; hides it, with its label and button, if it has no entries. Each item is complete before it is
// added: the list searches for an item that changes inside it, which is slow for thousands.
void Fill(QListWidget& list, QWidget& label, QWidget& button, const std::vector<XrefEntry>& entries)
{
    for (const XrefEntry& entry : entries) {
        auto item = std::make_unique<QListWidgetItem>(ShownBookText(entry.topic));
        item->setData(Qt::UserRole, entry.itemData);
        list.addItem(item.release()); // owned by the list from here on
    }
    for (QWidget* widget : {static_cast<QWidget*>(&list), &label, &button}) {
        widget->setVisible(!entries.empty());
    }
}

// The row of the selected entry; -1 for none. An entry can have the list's focus without being selected.
int SelectedRow(const QListWidget& list)
{
    const QListWidgetItem* item = list.currentItem();
    return item != nullptr && item->isSelected() ? list.row(item) : -1;
}

} // namespace

XrefForm::XrefForm(QWidget* parent, Book& book, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::XrefForm>()), m_book(book), m_seams(seams)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    m_ui->ToGoButton->setIcon(ButtonIcon(ButtonPicture::ArrowRight));
    m_ui->InGoButton->setIcon(ButtonIcon(ButtonPicture::ArrowRight));
    ConnectControls();
    Form_Load();
}

XrefForm::~XrefForm() = default;

void XrefForm::ConnectControls()
{
    connect(m_ui->ToList, &QListWidget::itemSelectionChanged, this, [this] { ShowNote(*m_ui->ToList); });
    connect(m_ui->InList, &QListWidget::itemSelectionChanged, this, [this] { ShowNote(*m_ui->InList); });
    // Clicking the selected entry shows its note again after one of the other list was shown.
    connect(m_ui->ToList, &QListWidget::itemClicked, this, [this] { ShowNote(*m_ui->ToList); });
    connect(m_ui->InList, &QListWidget::itemClicked, this, [this] { ShowNote(*m_ui->InList); });
    // A double click or Enter goes at once.
    connect(m_ui->ToList, &QListWidget::itemActivated, this, &XrefForm::ToGoButton_Click);
    connect(m_ui->InList, &QListWidget::itemActivated, this, &XrefForm::InGoButton_Click);
    connect(m_ui->ToGoButton, &QPushButton::clicked, this, &XrefForm::ToGoButton_Click);
    connect(m_ui->InGoButton, &QPushButton::clicked, this, &XrefForm::InGoButton_Click);
    connect(m_ui->CloseButton, &QPushButton::clicked, this, &XrefForm::reject);
}

void XrefForm::Form_Load()
{
    const std::string& shown = m_book.CurrentTopicName;
    const std::string title = shown.size() > 2 ? shown.substr(1, shown.size() - 2) : std::string();
    m_ui->TitleLabel->setText(QStringLiteral("Cross Reference Topics for: ") + ShownBookText(title));
    XrefLists lists = FindXrefs(m_book, title);
    m_to = std::move(lists.to);
    m_in = std::move(lists.in);
    Fill(*m_ui->ToList, *m_ui->ToListLabel, *m_ui->ToGoButton, m_to);
    Fill(*m_ui->InList, *m_ui->InListLabel, *m_ui->InGoButton, m_in);
}

void XrefForm::ShowNote(const QListWidget& list)
{
    const int row = SelectedRow(list);
    if (row >= 0) {
        const QListWidgetItem* item = list.item(row);
        const int number = item->data(Qt::UserRole).toInt();
        m_ui->NoteBox->setPlainText(ShownBookText(m_book.Xrefs(number).Text));
    }
}

void XrefForm::ToGoButton_Click()
{
    Go(*m_ui->ToList, m_to, "Please select a related topic first.");
}

void XrefForm::InGoButton_Click()
{
    Go(*m_ui->InList, m_in, "Please select another topic first.");
}

void XrefForm::Go(const QListWidget& list, const std::vector<XrefEntry>& entries, const std::string& reminder)
{
    const XrefEntry* const entry = ItemAt(entries, SelectedRow(list));
    if (entry == nullptr) {
        m_seams.messages.MsgBox(reminder, Icon::Exclamation);
        if (m_seams.end.Ended()) {
            reject();
        }
        return;
    }
    m_book.CurrentTopicName = entry->topic;
    accept();
}

} // namespace ls
