// How long events wait while the file selector reads a folder of many files. A timer beats; the longest gap
// between two beats is measured while the form opens, lists another pattern and lists all files.
//
//   bench_files FOLDER      (makes the files there and leaves them)

#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Volumes.h"
#include "bench/Measure.h"
#include "files/FileDialog.h"
#include "files/OpenForm.h"
#include "platform/SystemSeams.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace ls {
namespace {

constexpr int FileCount = 50000;
constexpr int BeatMilliseconds = 5;
constexpr int SettleMilliseconds = 500;

struct NoMessages : Messages
{
    using Messages::Messages;

protected:
    Reply ShowBox(const std::string& text, Icon, Buttons buttons, const std::string&) override
    {
        std::fprintf(stderr, "a box came: %s\n", text.c_str());
        std::exit(1);
        return SafeReply(buttons);
    }
    std::optional<std::string> ShowInputBox(const std::string&, const std::string&,
                                            const std::string&) override
    {
        return std::nullopt;
    }
};

void MakeFiles(const QString& folder)
{
    QDir().mkpath(folder);
    for (int i = 0; i < FileCount; ++i) {
        // Every second file is a book. The numbers are not in order.
        QFile file(folder + QStringLiteral("/Book %1.%2")
                                .arg((i * 7919) % FileCount)
                                .arg(i % 2 == 0 ? QStringLiteral("IDA") : QStringLiteral("txt")));
        if (!file.exists() && !file.open(QIODevice::WriteOnly)) {
            std::fprintf(stderr, "cannot make %s\n", qPrintable(file.fileName()));
            std::exit(1);
        }
    }
}

/// Beats while the event loop runs, and measures the longest gap between two beats.
class Heart
{
public:
    Heart()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { Beat(); });
        m_timer.start(BeatMilliseconds);
    }

    /// Runs `work` inside the event loop, lets its events settle, and prints the longest gap.
    void Measure(const char* what, const std::function<void()>& work)
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            m_sinceBeat.start();
            m_longest = 0;
            work();
            QTimer::singleShot(SettleMilliseconds, &loop, &QEventLoop::quit);
        });
        loop.exec();
        bench::PrintRow(what, std::to_string(m_longest) + " ms");
    }

private:
    void Beat() { m_longest = std::max(m_longest, m_sinceBeat.isValid() ? m_sinceBeat.restart() : 0); }

    QTimer m_timer;
    QElapsedTimer m_sinceBeat;
    qint64 m_longest = 0;
};

void Press(QWidget& form, const QString& pattern)
{
    form.findChild<QLineEdit*>(QStringLiteral("TextBox"))->setText(pattern);
    form.findChild<QPushButton*>(QStringLiteral("OKButton"))->click();
}

void Run(const QString& folder)
{
    MakeFiles(folder);
    ProgramEnd end;
    NoMessages messages(end);
    const auto files = MakeFileSystem();
    const auto processes = MakeProcesses();
    const auto volumes = MakeVolumes();
    FileDialog dialog;
    dialog.FileMode = "R";
    dialog.ChosenFullPath = (folder + QStringLiteral("/*.IDA")).toStdString();
    std::unique_ptr<OpenForm> form;
    Heart heart;
    heart.Measure("open the form on 50,000 files", [&] {
        form = std::make_unique<OpenForm>(
            nullptr, dialog, Seams{*files, messages, *processes, end, NativePaths()}, *volumes, "");
        form->show();
    });
    const auto printCount = [&form] {
        const auto* list = form->findChild<QListView*>(QStringLiteral("FileListBox"));
        bench::PrintRow("  listed then", std::to_string(list->model()->rowCount()) + " files");
    };
    printCount();
    heart.Measure("list all of them", [&] { Press(*form, QStringLiteral("*.*")); });
    printCount();
    heart.Measure("go up and come back", [&] {
        Press(*form, QStringLiteral("/*.*"));
        Press(*form, folder + QStringLiteral("/*.*"));
    });
}

} // namespace
} // namespace ls

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: bench_files FOLDER\n", stderr);
        return 2;
    }
    ls::bench::PrintHead(
        "The file selector",
        "The longest time that an event waits in a folder of 50,000 files, by the clock on the wall.");
    ls::Run(QDir(QString::fromLocal8Bit(argv[1])).absoluteFilePath(QStringLiteral("many-files")));
    return 0;
}
