#include "advisor/AdvForm.h"

#include "base/CodePage.h"
#include "base/ItemAt.h"
#include "base/ProgramEnd.h"
#include "base/RunGuarded.h"
#include "forms/FormFont.h"
#include "forms/Shown.h"
#include "ui_AdvForm.h"

#include <QFontMetrics>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace ls {

namespace {

constexpr int LinesShownWhole = 15;   // of a question that fits without scrolling
constexpr int WindowTitleHeight = 40; // with the borders; enough for any desktop

} // namespace

AdvForm::AdvForm(QWidget* parent, Book& book, AdvisorTables& tables, const Seams& seams)
    : QDialog(parent), m_ui(std::make_unique<Ui::AdvForm>()), m_seams(seams),
      m_dialog(book, tables, m_seams, *this)
{
    setFont(FormFont());
    m_ui->setupUi(this);
    SetHeightForLines(LinesShownWhole);
    connect(m_ui->NextButton, &QPushButton::clicked, this, &AdvForm::NextButton_Click);
}

AdvForm::~AdvForm() = default;

// Gives the text room for that many lines, or as many as the screen has room for. All else keeps its height.
void AdvForm::SetHeightForLines(int lines)
{
    ensurePolished();
    const QPlainTextEdit& text = *m_ui->MessageBox;
    const QMargins frame = text.contentsMargins();
    const int margin = static_cast<int>(text.document()->documentMargin());
    const int wanted = lines * QFontMetrics(text.font()).lineSpacing() + 2 * margin + frame.top() +
                       frame.bottom() + 2 * text.frameWidth();
    const int others = layout()->minimumSize().height() - text.minimumSizeHint().height();
    const int least = layout()->minimumSize().height();
    const int most = std::max(least, screen()->availableGeometry().height() - WindowTitleHeight);
    resize(width(), std::min(std::max(height(), wanted + others), most));
}

void AdvForm::Run()
{
    m_dialog.Form_Load();
    if (!m_seams.end.Ended()) {
        exec();
    }
}

void AdvForm::ShowQuestion(const Question& question)
{
    ShowText(question.text);
    m_choices = question.choices;
    m_ui->AnswerCombo->clear();
    for (const std::string& choice : m_choices) {
        m_ui->AnswerCombo->addItem(ShownBookText(choice));
    }
    m_ui->AnswerCombo->setCurrentIndex(0);
    m_ui->AnswerCombo->setFocus();
}

void AdvForm::ShowAdvice(const std::string& /*identifier*/, const std::string& text)
{
    ShowText(text);
    FocusNext(); // before the list, which has the focus, is hidden
    m_ui->AnswerCombo->hide();
    m_ui->AnswerLabel->hide();
}

// The text is also the description of the controls that get the focus, so that a screen reader reads it
// aloud.
void AdvForm::ShowText(const std::string& text)
{
    m_ui->MessageBox->setPlainText(ShownBookText(text));
    const QString shown = m_ui->MessageBox->toPlainText();
    m_ui->AnswerCombo->setAccessibleDescription(shown);
    m_ui->NextButton->setAccessibleDescription(shown);
}

void AdvForm::SetButtonCaption(const std::string& caption)
{
    m_ui->NextButton->setText(u'&' + ShownBookText(caption)); // "Next", "Close"
    if (m_dialog.Over()) {
        // The button is the only action left.
        m_ui->AnswerCombo->setEnabled(false);
        FocusNext();
    }
}

void AdvForm::FocusNext()
{
    m_ui->NextButton->setFocus();
}

void AdvForm::Unload()
{
    accept();
}

// The window's event loop cannot pass an exception on, so none may leave this function.
void AdvForm::NextButton_Click()
{
    const std::string* const chosen = ItemAt(m_choices, m_ui->AnswerCombo->currentIndex());
    // A copy, because the dialog may clear the choices.
    const std::string answer = chosen == nullptr ? std::string() : *chosen;
    RunGuarded([&] { m_dialog.NextButton_Click(answer); }, m_seams);
    if (m_seams.end.Ended()) {
        accept();
    }
}

} // namespace ls
