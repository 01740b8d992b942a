#include "reader/window/CheckForm.h"

#include "base/ItemAt.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "reader/window/CheckItem.h"
#include "ui_CheckForm.h"

#include <QLayout>

namespace ls {

CheckForm::CheckForm(QWidget* parent, const CheckedBook& checked)
    : QDialog(parent), m_ui(std::make_unique<Ui::CheckForm>()), m_checked(checked)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->FindingList, &QTreeWidget::currentItemChanged, this, &CheckForm::FindingList_Change);
    // A double click or Enter goes at once.
    connect(m_ui->FindingList, &QTreeWidget::itemActivated, this, &CheckForm::GoButton_Click);
    connect(m_ui->GoButton, &QPushButton::clicked, this, &CheckForm::GoButton_Click);
    connect(m_ui->CloseButton, &QPushButton::clicked, this, &CheckForm::reject);
    Form_Load();
}

CheckForm::~CheckForm() = default;

void CheckForm::Form_Load()
{
    m_ui->SummaryLabel->setText(Shown(m_checked.summary));
    m_ui->NotesLabel->setText(Shown(m_checked.notes).trimmed());
    m_ui->NotesLabel->setVisible(!m_checked.notes.empty());
    const bool any = !m_checked.findings.empty();
    for (QWidget* widget : {static_cast<QWidget*>(m_ui->FindingList), static_cast<QWidget*>(m_ui->TextBox),
                            static_cast<QWidget*>(m_ui->GoButton)}) {
        widget->setVisible(any);
    }
    if (!any) {
        constexpr int WidthWithoutList = 460;
        resize(WidthWithoutList, layout()->totalHeightForWidth(WidthWithoutList));
        return;
    }
    FillList();
    m_ui->FindingList->setFocus();
}

void CheckForm::FillList()
{
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(m_checked.findings.size()));
    for (const Finding& finding : m_checked.findings) {
        auto* item = new QTreeWidgetItem(QStringList{QString::fromLatin1(SeverityWord(finding.severity)),
                                                     QString::number(finding.line), Shown(finding.topic),
                                                     Shown(finding.rule), Shown(finding.text)});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        items.append(item);
    }
    m_ui->FindingList->addTopLevelItems(items);
    constexpr int WidestColumn = 170;
    for (int column = 0; column < m_ui->FindingList->columnCount() - 1; ++column) {
        m_ui->FindingList->resizeColumnToContents(column);
        if (m_ui->FindingList->columnWidth(column) > WidestColumn) {
            m_ui->FindingList->setColumnWidth(column, WidestColumn);
        }
    }
    m_ui->FindingList->setCurrentItem(items.front());
}

int CheckForm::SelectedRow() const
{
    return m_ui->FindingList->indexOfTopLevelItem(m_ui->FindingList->currentItem());
}

void CheckForm::FindingList_Change()
{
    const Finding* const finding = ItemAt(m_checked.findings, SelectedRow());
    m_ui->TextBox->setPlainText(finding == nullptr ? QString() : Shown(finding->text));
}

void CheckForm::GoButton_Click()
{
    const int row = SelectedRow();
    if (row >= 0) {
        m_chosen = static_cast<std::size_t>(row);
        accept();
    }
}

} // namespace ls
