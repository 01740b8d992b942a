#include "render/pane/FindBar.h"

#include "base/CodePage.h"
#include "render/pane/FindInText.h"
#include "render/pane/ReadingPane.h"
#include "ui_FindBar.h"

#include <QKeyEvent>
#include <QToolButton>

namespace ls {

FindBar::FindBar(QWidget* parent) : QWidget(parent), m_ui(std::make_unique<Ui::FindBar>())
{
    m_ui->setupUi(this);
    if (auto* clear = m_ui->FindBox->findChild<QToolButton*>(); clear != nullptr) {
        clear->setAccessibleName(QStringLiteral("Clear"));
    }
    connect(m_ui->FindBox, &QLineEdit::textChanged, this, &FindBar::FindBox_Change);
    connect(m_ui->FindNextButton, &QAbstractButton::clicked, this, &FindBar::FindNext);
    connect(m_ui->FindPreviousButton, &QAbstractButton::clicked, this, &FindBar::FindPrevious);
    connect(m_ui->FindCloseButton, &QAbstractButton::clicked, this, &FindBar::Close);
}

FindBar::~FindBar() = default;

void FindBar::SetPane(ReadingPane* pane)
{
    m_pane = pane;
    connect(pane, &ReadingPane::TopicChanged, this, [this] {
        m_matches.clear();
        if (!isHidden()) {
            Recount();
            ShowCount();
        }
    });
    connect(pane, &ReadingPane::SelectionChanged, this, [this] {
        if (!isHidden()) {
            ShowCount();
        }
    });
}

void FindBar::Open()
{
    const QString selected = m_pane->SelectedText();
    SetShown(true);
    if (!selected.isEmpty() && !selected.contains(QLatin1Char('\n'))) {
        m_ui->FindBox->setText(selected);
    }
    Recount();
    ShowCount();
    m_ui->FindBox->setFocus(Qt::ShortcutFocusReason);
    m_ui->FindBox->selectAll();
}

void FindBar::Close()
{
    if (!isHidden()) {
        SetShown(false);
        m_pane->setFocus(Qt::OtherFocusReason);
    }
}

void FindBar::SetShown(bool shown)
{
    if (isHidden() == shown) {
        setVisible(shown);
        Q_EMIT ShownOrHidden();
    }
}

// Searches from the start of the current match, so that typing on keeps a match that still fits.
void FindBar::FindBox_Change()
{
    Recount();
    ShowMatch(NextMatch(m_matches, m_pane->Selection().Range().begin));
}

void FindBar::Find(bool forward)
{
    if (m_ui->FindBox->text().isEmpty()) {
        Open();
        return;
    }
    SetShown(true);
    Recount();
    const TextRange from = m_pane->Selection().Range();
    const std::size_t after = from.Empty() ? from.begin : from.begin + 1;
    ShowMatch(forward ? NextMatch(m_matches, after) : PreviousMatch(m_matches, from.begin));
}

// A text that no book can hold has no matches.
void FindBar::Recount()
{
    const std::optional<std::string> sought = ToBook(m_ui->FindBox->text().toStdString());
    m_matches = FindAll(m_pane->Topic().Text(), sought.value_or(std::string()));
}

// Selects the match. Without one, clears the selection.
void FindBar::ShowMatch(std::optional<std::size_t> match)
{
    const std::size_t from = m_pane->Selection().Range().begin;
    m_pane->Select(match ? m_matches[*match] : TextRange{from, from});
    ShowCount();
}

// If one of the matches is selected, shows its number. The box's description is set too, as screen readers
// announce it while the user types in the box.
void FindBar::ShowCount()
{
    const TextRange selected = m_pane->Selection().Range();
    const std::optional<std::size_t> match = NextMatch(m_matches, selected.begin);
    QString count;
    if (match && m_matches[*match] == selected) {
        count = QStringLiteral("%1 of %2").arg(*match + 1).arg(m_matches.size());
    } else if (!m_matches.empty()) {
        count = QStringLiteral("%1 found").arg(m_matches.size());
    } else if (!m_ui->FindBox->text().isEmpty()) {
        count = QStringLiteral("Not found");
    }
    if (count != m_ui->FindCount->text()) {
        m_ui->FindCount->setText(count);
        m_ui->FindBox->setAccessibleDescription(count);
    }
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Find(!event->modifiers().testFlag(Qt::ShiftModifier));
        break;
    case Qt::Key_Escape:
        Close();
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

} // namespace ls
