#pragma once

#include "base/Seams.h"
#include "recovery/JournalWatch.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace ls {

struct Book;
class OwnJournal;

/// Keeps the journal of the edits up to date while the program runs: once a second, after every command, and
/// when a fault ends the program.
class JournalKeeper : public QObject
{
    Q_OBJECT

public:
    /// `busy` returns whether a command of the main window is running. `tell` informs the user without
    /// waiting.
    JournalKeeper(const Book& book, const Seams& seams, OwnJournal& journal, std::function<bool()> busy,
                  JournalWatch::Tell tell);
    ~JournalKeeper() override;

    void Start() { m_timer.start(); }

    /// Call before the program ends; see `JournalWatch::Finish`.
    void Finish();

public Q_SLOTS:
    /// Brings the journal up to date.
    void Keep();

private:
    ProgramEnd& m_end;
    JournalWatch m_watch;
    std::function<bool()> m_busy;
    QTimer m_timer;
};

} // namespace ls
