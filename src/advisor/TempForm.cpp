#include "advisor/TempForm.h"

#include "base/ItemAt.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "forms/TextBox.h"
#include "ui_TempForm.h"

#include <utility>

namespace ls {

TempForm::TempForm(QWidget* parent, const std::string& text, std::vector<TempFormRow> rows)
    : QDialog(parent), m_ui(std::make_unique<Ui::TempForm>()), m_rows(std::move(rows))
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->CloseButton, &QPushButton::clicked, this, &TempForm::CloseButton_Click);
    SetFixedPitch(*m_ui->Text1);
    m_ui->Text1->setPlainText(Shown(text));
    ShowRows();
    m_ui->CloseButton->setFocus();
}

TempForm::~TempForm() = default;

void TempForm::ShowRows()
{
    if (m_rows.empty()) {
        m_ui->FindingsLabel->setText(QStringLiteral("The book check finds nothing in this block."));
        m_ui->FindingsList->hide();
        return;
    }
    QStringList entries;
    for (const TempFormRow& row : m_rows) {
        entries.append(Shown(row.text));
    }
    m_ui->FindingsList->addItems(entries);
    connect(m_ui->FindingsList, &QListWidget::currentRowChanged, this, &TempForm::FindingsList_Click);
}

void TempForm::FindingsList_Click(int row)
{
    if (const TempFormRow* const chosen = ItemAt(m_rows, row)) {
        SelectLine(*m_ui->Text1, chosen->line);
    }
}

void TempForm::CloseButton_Click()
{
    accept();
}

} // namespace ls
