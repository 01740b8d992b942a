#include "forms/FormProgress.h"

#include "forms/FormFont.h"
#include "forms/TitleWidth.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>

#include <algorithm>

namespace ls {

namespace {

constexpr int BarLength = 1000;
constexpr int MillisecondsBetweenMoves = 50;
constexpr int BoxWidth = 360; // the width of a usual label, so that a short label does not make the bar short

int BarPosition(std::int64_t done, std::int64_t total)
{
    if (total <= 0) {
        return 0;
    }
    const double part = static_cast<double>(done) / static_cast<double>(total);
    return static_cast<int>(std::clamp(part, 0.0, 1.0) * BarLength);
}

} // namespace

FormProgress::FormProgress(QWidget* window, ProgressBox box) : m_window(window), m_box(std::move(box))
{
    m_sinceStart.start();
}

FormProgress::~FormProgress() = default;

bool FormProgress::Step(std::int64_t done, std::int64_t total)
{
    if (m_dialog == nullptr) {
        if (m_sinceStart.elapsed() < m_box.delayMilliseconds) {
            return true;
        }
        Open();
    } else if (Cancelled() || m_sinceMoved.elapsed() < MillisecondsBetweenMoves) {
        return !Cancelled();
    }
    m_sinceMoved.start();
    m_dialog->setValue(BarPosition(done, total));
    QCoreApplication::processEvents();
    return !Cancelled();
}

void FormProgress::Open()
{
    m_dialog = std::make_unique<QProgressDialog>(m_window);
    m_dialog->setObjectName(QStringLiteral("ProgressBox"));
    m_dialog->setFont(FormFont());
    m_dialog->setWindowTitle(QStringLiteral("Lodestar Advisor"));
    m_dialog->setMinimumWidth(std::max(BoxWidth, TitleWidth(m_dialog->windowTitle())));
    m_dialog->setWindowModality(Qt::ApplicationModal);
    auto* label = new QLabel(m_box.label);
    label->setTextFormat(Qt::PlainText);
    m_dialog->setLabel(label);
    if (auto* bar = m_dialog->findChild<QProgressBar*>(); bar != nullptr) {
        bar->setAccessibleName(m_box.label);
    }
    m_dialog->setRange(0, BarLength);
    m_dialog->setMinimumDuration(0);
    m_dialog->setAutoReset(false);
    m_dialog->setAutoClose(false);
    // Escape is the cancel button's shortcut only while the box is active. Before that it closes the box,
    // which must cancel too.
    connect(m_dialog.get(), &QDialog::rejected, m_dialog.get(), &QProgressDialog::cancel);
    m_dialog->setCancelButtonText(QStringLiteral("&Cancel"));
    if (!m_box.canCancel) {
        m_dialog->setCancelButton(nullptr);
        m_dialog->installEventFilter(this);
    }
    m_dialog->show();
}

bool FormProgress::Cancelled() const
{
    return m_box.canCancel && m_dialog != nullptr && m_dialog->wasCanceled();
}

// Ignores Escape and the close button for work that must run to its end.
bool FormProgress::eventFilter(QObject* watched, QEvent* event)
{
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escape || event->type() == QEvent::Close) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ls
