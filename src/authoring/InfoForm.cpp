#include "authoring/InfoForm.h"

#include "authoring/RunningEdits.h"
#include "base/ProgramEnd.h"
#include "forms/FormFont.h"
#include "ui_InfoForm.h"

#include <utility>

namespace ls {

InfoForm::InfoForm(QWidget* parent, Book& book, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::InfoForm>()), m_book(book), m_seams(seams)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    connect(m_ui->OKBox, &QPushButton::clicked, this, &InfoForm::OKBox_Click);
    connect(m_ui->CancelBox, &QPushButton::clicked, this, &InfoForm::reject);
    Form_Load();
    for (const QLineEdit* box : {m_ui->AuthorBox, m_ui->CopyrightBox, m_ui->WebURLBox}) {
        connect(box, &QLineEdit::textChanged, this, [this] { Edited(); });
    }
    connect(m_ui->WebPostCheck, &QCheckBox::toggled, this, [this] { Edited(); });
}

InfoForm::~InfoForm() = default;

void InfoForm::Form_Load()
{
    const Properties shown = LoadProperties(m_book);
    m_ui->AuthorBox->setText(QString::fromStdString(shown.author));
    m_ui->CopyrightBox->setText(QString::fromStdString(shown.copyright));
    m_ui->WebURLBox->setText(QString::fromStdString(shown.webUrl));
    m_ui->WebPostCheck->setChecked(shown.webPost);
}

Properties InfoForm::Entered() const
{
    return {m_ui->AuthorBox->text().toStdString(), m_ui->CopyrightBox->text().toStdString(),
            m_ui->WebURLBox->text().toStdString(), m_ui->WebPostCheck->isChecked()};
}

void InfoForm::AddRunningEdits(RunningEdits& edits)
{
    if (Properties entered = Entered(); entered != LoadProperties(m_book)) {
        edits.properties = std::move(entered);
    }
}

void InfoForm::OKBox_Click()
{
    if (SaveProperties(m_book, m_seams, Entered())) {
        accept();
    } else if (m_seams.end.Ended()) {
        reject();
    }
}

} // namespace ls
