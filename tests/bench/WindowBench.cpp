// Compares the windows' time for ten times the topics, references and lines with the time for one tenth.
//
//   bench_window FOLDER      (makes the books there)

#include "authoring/DelTopicForm.h"
#include "authoring/MoveTopicsForm.h"
#include "authoring/TxEdForm.h"
#include "bench/BenchBooks.h"
#include "bench/GrowthRows.h"
#include "book/BookLoader.h"
#include "forms/FormFont.h"
#include "platform/DdeSeam.h"
#include "platform/SystemSeams.h"
#include "reader/settings/CommandLine.h"
#include "reader/window/Global.h"
#include "reader/window/MainForm.h"
#include "reader/window/XrefForm.h"
#include "render/print/SystemPrinter.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>

#include <cstdio>
#include <filesystem>

namespace ls::bench {
namespace {

// Topics of one line, each with a reference to the first. The last topic has as many lines as the book has
// topics.
std::string WriteTopics(const std::string& folder, int topics)
{
    std::string text = "LODESTAR BOOK V5.3\r\n";
    for (int topic = 1; topic <= topics; ++topic) {
        text += "[Topic " + std::to_string(topic) + "]\r\nShort.\r\n";
        for (int line = 0; topic == topics && line < topics; ++line) {
            text += "A <B>line</B> that is as long as most lines of a book are, and no longer.\r\n";
        }
        text += "<XREF TOPIC=Topic 1>Back.</XREF>\r\n";
    }
    const std::string path = folder + "/window-" + std::to_string(topics) + ".IDA";
    WriteFile(path, text);
    return path;
}

// The main window with such a book, on the toolkit's offscreen platform.
class Window
{
public:
    Window(const std::string& folder, int topics) : m_folder(folder), m_topics(topics)
    {
        m_path = WriteTopics(folder, topics);
    }

    void Open()
    {
        m_form.reset();
        m_global = std::make_unique<Global>();
        m_form = std::make_unique<MainForm>(*m_global, m_world.Get(),
                                            FormSeams{*m_volumes, *m_dde, *m_registry, m_printer});
        CommandLine line;
        line.bookPath = m_path;
        line.iniDir = m_folder;
        m_form->Form_Load(line);
        m_form->show();
        Paint();
        Require(m_form->findChild<QComboBox*>(QStringLiteral("TopicList"))->count() == m_topics,
                "all topics are listed");
    }

    void Order()
    {
        Trigger("AlphaItem");
        Trigger("ContentsItem");
    }

    void GoToNext()
    {
        Trigger("NextItem");
        Require(m_global->book.CurrentTopicNo != 1, "another topic is on show");
    }

    void ShowLast()
    {
        auto* list = m_form->findChild<QComboBox*>(QStringLiteral("TopicList"));
        list->setCurrentIndex(0);
        list->setCurrentIndex(m_topics - 1);
        Trigger("GoToButton");
        Paint();
    }

    template <typename Form, typename... Arguments>
    void ShowForm(Arguments&&... arguments)
    {
        Form form(m_form.get(), m_global->book, std::forward<Arguments>(arguments)...);
        form.show();
        Paint();
    }

    void ShowMoveTopics() { ShowForm<MoveTopicsForm>(m_global->topicFlags, m_world.Get()); }
    void ShowDelTopic() { ShowForm<DelTopicForm>(m_global->topicFlags, true); }
    void ShowReferences()
    {
        m_global->book.CurrentTopicName = "[Topic 1]";
        m_global->book.CurrentTopicNo = 1;
        ShowForm<XrefForm>(m_world.Get());
    }
    void EditLast()
    {
        Book& book = m_global->book;
        book.CurrentTopicName = book.TopicNames(m_topics);
        book.CurrentTopicNo = m_topics;
        Count16 number = m_topics;
        std::string name = book.CurrentTopicName;
        Require(LoadTopicRec(book, m_world.Get(), name, number), "the last topic can be edited");
        ShowForm<TxEdForm>(m_world.Get());
        book.TopicRecs(m_topics) = {};
    }

private:
    void Paint() { QCoreApplication::processEvents(); }

    void Trigger(const char* name)
    {
        auto* item = m_form->findChild<QAction*>(QString::fromLatin1(name));
        auto* button = m_form->findChild<QAbstractButton*>(QString::fromLatin1(name));
        Require(item != nullptr || button != nullptr, name);
        item != nullptr ? item->trigger() : button->click();
        Paint();
    }

    std::string m_folder;
    int m_topics;
    std::string m_path;
    BenchWorld m_world;
    std::unique_ptr<FileSystem> m_files = MakeFileSystem();
    std::unique_ptr<Processes> m_processes = MakeProcesses();
    std::unique_ptr<Volumes> m_volumes = MakeVolumes();
    std::unique_ptr<Registry> m_registry = MakeRegistry(*m_processes);
    std::unique_ptr<DdeServer> m_dde = MakeDdeServer();
    std::unique_ptr<PrintService> m_service = MakePrintService();
    SystemPrinter m_printer{*m_files, *m_service};
    std::unique_ptr<Global> m_global;
    std::unique_ptr<MainForm> m_form;
};

void Run(const std::string& folder)
{
    Window small(folder, 3000);
    Window large(folder, 30000);
    const GrowthRows rows("30,000 beside 3,000: ");
    const auto compare = [&](const char* what, int rounds, const std::function<void(Window&)>& work) {
        rows.Measure(
            what, rounds, [&] { work(large); }, [&] { work(small); });
    };
    compare("open the book and list it", 9, &Window::Open);
    compare("list by name and back", 9, &Window::Order);
    compare("next topic", 41, &Window::GoToNext);
    compare("show a topic of as many lines", 9, &Window::ShowLast);
    compare("form of as many references", 5, &Window::ShowReferences);
    compare("form that moves topics", 5, &Window::ShowMoveTopics);
    compare("form that removes topics", 5, &Window::ShowDelTopic);
    compare("editor of a topic of as many lines", 5, &Window::EditLast);
}

} // namespace
} // namespace ls::bench

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setFont(ls::FormFont());
    if (argc != 2) {
        std::fputs("usage: bench_window FOLDER\n", stderr);
        return 2;
    }
    ls::bench::PrintHead("Ten times the work in a window",
                         "Each row has ten times the topics or lines of the work that it is compared with.");
    const std::string folder = std::filesystem::absolute(argv[1]).string() + "/window";
    std::filesystem::create_directories(folder);
    ls::bench::Run(folder);
    return 0;
}
