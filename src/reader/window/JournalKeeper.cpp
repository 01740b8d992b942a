#include "reader/window/JournalKeeper.h"

#include "authoring/EditSource.h"
#include "base/ProgramEnd.h"
#include "recovery/OwnJournal.h"

#include <QApplication>
#include <QDateTime>
#include <QWidget>

#include <utility>

namespace ls {

namespace {

// The visible forms that edit the book, also those below boxes and other forms.
JournalWatch::Forms OpenForms()
{
    JournalWatch::Forms forms;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* const form = window->isVisible() ? dynamic_cast<EditSource*>(window) : nullptr;
        if (form != nullptr) {
            forms.push_back(form);
        }
    }
    return forms;
}

} // namespace

JournalKeeper::JournalKeeper(const Book& book, const Seams& seams, OwnJournal& journal,
                             std::function<bool()> busy, JournalWatch::Tell tell)
    : m_end(seams.end), m_watch(book, seams, journal, &QDateTime::currentSecsSinceEpoch, std::move(tell)),
      m_busy(std::move(busy))
{
    m_timer.setInterval(JournalIntervalMilliseconds);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &JournalKeeper::Keep);
    m_end.SetLastAct([this] { m_watch.LastAct(OpenForms()); });
}

JournalKeeper::~JournalKeeper()
{
    m_end.SetLastAct({});
}

void JournalKeeper::Keep()
{
    m_watch.Look(OpenForms(), m_busy());
}

void JournalKeeper::Finish()
{
    m_timer.stop();
    m_watch.Finish();
}

} // namespace ls
