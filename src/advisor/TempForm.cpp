#include "advisor/TempForm.h"

#include "app/FormFont.h"
#include "render/CellMetrics.h"
#include "ui_TempForm.h"

namespace ls {

TempForm::TempForm(QWidget* parent, const std::string& text, const std::string& findings)
    : QDialog(parent), m_ui(std::make_unique<Ui::TempForm>())
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->CloseButton, &QPushButton::clicked, this, &TempForm::CloseButton_Click);
    m_ui->Text1->setFont(MeasureCells(logicalDpiY()).fonts[RegularFace]);
    m_ui->Text1->setPlainText(QString::fromStdString(text));
    m_ui->FindingsBox->setPlainText(QString::fromStdString(findings));
    m_ui->CloseButton->setFocus();
}

TempForm::~TempForm() = default;

void TempForm::CloseButton_Click()
{
    accept();
}

} // namespace ls
