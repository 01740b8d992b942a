#include "render/print/PrtForm.h"

#include "base/PrinterDevice.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "browser/HelpPages.h"
#include "files/SelectProgram.h"
#include "forms/ButtonIcons.h"
#include "forms/FormFont.h"
#include "render/print/PrtFormRules.h"
#include "ui_PrtForm.h"

namespace ls {

namespace {

constexpr const char* HelpPage = "LSIdeas_Print_Parameters.htm";

} // namespace

PrtForm::PrtForm(QWidget* parent, PrintSettings& settings, const Book& book, const Seams& seams,
                 const FormSeams& forms)
    : QDialog(parent), m_ui(std::make_unique<Ui::PrtForm>()), m_settings(settings), m_book(book),
      m_seams(seams), m_forms(forms)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    m_ui->HelpButton->setIcon(ButtonIcon(ButtonPicture::QuestionMark));
    Form_Load();
    connect(m_ui->PrinterCombo, &QComboBox::activated, this, &PrtForm::PrinterCombo_Click);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &PrtForm::OKButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &PrtForm::reject);
    connect(m_ui->HelpButton, &QPushButton::clicked, this, &PrtForm::HelpButton_Click);
}

PrtForm::~PrtForm() = default;

void PrtForm::Form_Load()
{
    const PrtFormView view = LoadPrtForm(m_settings, m_forms.printer);
    for (const std::string& name : view.printers) {
        m_ui->PrinterCombo->addItem(QString::fromStdString(name));
    }
    m_ui->PrinterCombo->setCurrentText(QString::fromStdString(view.printer));
    for (const PaperChoice& paper : view.papers) {
        m_ui->PaperCombo->addItem(QString::fromStdString(paper.text), paper.code);
    }
    m_ui->PaperCombo->setCurrentIndex(static_cast<int>(view.paper));
    m_ui->TypeSizeCombo->setCurrentIndex(view.elite ? 1 : 0);
    (view.colour ? m_ui->ColourOption : m_ui->BWOption)->setChecked(true);
    // The Tab key must stop at the chosen option of the two. The toolkit does that only after one had the
    // focus.
    (view.colour ? m_ui->BWOption : m_ui->ColourOption)->setFocusPolicy(Qt::ClickFocus);
    m_ui->HelpButton->setEnabled(HasHelpPage(HelpPage, m_seams));
}

void PrtForm::PrinterCombo_Click()
{
    ls::PrinterCombo_Click(m_forms.printer, m_ui->PrinterCombo->currentText().toStdString());
}

void PrtForm::OKButton_Click()
{
    const PrtFormChoices choices{m_ui->PrinterCombo->currentText().toStdString(),
                                 m_ui->PaperCombo->currentData().toInt(), m_ui->ColourOption->isChecked(),
                                 m_ui->TypeSizeCombo->currentIndex() == 1};
    if (AcceptPrtForm(m_settings, m_forms.printer, m_book, m_seams, choices)) {
        accept();
    } else if (m_seams.end.Ended()) {
        reject();
    }
}

void PrtForm::HelpButton_Click()
{
    ShowHelpPage(HelpPage, m_seams, m_forms.registry, [this](const std::string& startPath) {
        return SelectProgram(this, m_seams, m_forms, m_book.WorkDir, startPath);
    });
    if (m_seams.end.Ended()) {
        reject();
    }
}

} // namespace ls
