#include "advisor/TempForm.h"

#include "forms/FormFont.h"
#include "forms/TextBox.h"
#include "ui_TempForm.h"

namespace ls {

TempForm::TempForm(QWidget* parent, const std::string& text, const std::vector<Finding>& findings)
    : QDialog(parent), m_ui(std::make_unique<Ui::TempForm>()), m_findings(findings)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->CloseButton, &QPushButton::clicked, this, &TempForm::CloseButton_Click);
    SetFixedPitch(*m_ui->Text1);
    m_ui->Text1->setPlainText(Shown(text));
    ShowFindings();
    m_ui->CloseButton->setFocus();
}

TempForm::~TempForm() = default;

void TempForm::ShowFindings()
{
    if (m_findings.empty()) {
        m_ui->FindingsLabel->setText(QStringLiteral("The book check finds nothing in this block."));
        m_ui->FindingsList->hide();
        return;
    }
    QStringList entries;
    for (const Finding& finding : m_findings) {
        entries.append(Shown("Line " + std::to_string(finding.line) + ", " + SeverityWord(finding.severity) +
                             ": " + finding.text));
    }
    m_ui->FindingsList->addItems(entries);
    connect(m_ui->FindingsList, &QListWidget::currentRowChanged, this, &TempForm::FindingsList_Click);
}

void TempForm::FindingsList_Click(int row)
{
    if (row >= 0) {
        SelectLine(*m_ui->Text1, m_findings[static_cast<std::size_t>(row)].line);
    }
}

void TempForm::CloseButton_Click()
{
    accept();
}

} // namespace ls
