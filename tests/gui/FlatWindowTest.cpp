// Descriptors and memory of the real window over a long day of topics, dialogues and opened books.

#include "flat/Held.h"
#include "gui/MainFormFixture.h"

#include <QDialog>

#include <functional>

namespace ls {
namespace {

using test::Held;

// Larger than without a window, because Qt's caches (glyphs, texts of events) grow too.
constexpr test::Tolerance WindowsTolerance{256 * 1024, 16 * 1024 * 1024};

struct FlatWindow : MainFormFixture
{
    // Runs `work` `times` times, after a fifth of that to warm up. Returns what has grown.
    static std::string GrowthOver(int times, const std::function<void(int)>& work)
    {
        for (int i = 0; i < times / 5; ++i) {
            work(i);
        }
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const Held before = Held::Now();
        for (int i = 0; i < times; ++i) {
            work(i);
        }
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const Held after = Held::Now();
        RecordProperty("descriptors",
                       std::to_string(before.descriptors) + " " + std::to_string(after.descriptors));
        RecordProperty("allocated", std::to_string(before.allocated) + " " + std::to_string(after.allocated));
        RecordProperty("resident", std::to_string(before.resident) + " " + std::to_string(after.resident));
        return Growth(before, after, WindowsTolerance);
    }

    // Runs `act` on each modal window as soon as it opens.
    void Meet(std::function<void(QWidget&)> act)
    {
        QObject::connect(&timer, &QTimer::timeout, &timer, [act = std::move(act)] {
            if (QWidget* const window = QApplication::activeModalWidget()) {
                act(*window);
            }
        });
        timer.start(0);
    }

    QTimer timer;
};

TEST_F(FlatWindow, topicChanges_tenThousand_holdNoMore)
{
    Start(LS_SAMPLES "/Guide.IDA");
    auto& list = Get<QComboBox>("TopicList");
    ASSERT_GT(list.count(), 10);
    EXPECT_EQ(GrowthOver(10'000,
                         [&](int i) {
                             list.setCurrentIndex(i % list.count());
                             test::Press(form, "GoToButton");
                             QApplication::processEvents();
                         }),
              "");
    EXPECT_FALSE(PaneText().empty());
}

TEST_F(FlatWindow, dialogues_thousand_holdNoMore)
{
    Start(LS_SAMPLES "/Advice.IDA", "A Day in the Hills");
    ASSERT_TRUE(Visible("AdvisorButton"));
    int windows = 0;
    Meet([&windows](QWidget& window) {
        ++windows;
        window.close();
    });
    EXPECT_EQ(GrowthOver(1'000, [&](int) { test::Press(form, "AdvisorButton"); }), "");
    EXPECT_GE(windows, 1'000);
}

TEST_F(FlatWindow, opens_thousand_holdNoMore)
{
    Start(WriteThree());
    const std::string paths[] = {LS_SAMPLES "/Guide.IDA", LS_SAMPLES "/Advice.IDA", Path("Three.IDA")};
    int opened = 0;
    Meet([&](QWidget& window) {
        ++opened;
        ChooseFile(window, paths[opened % 3]);
    });
    EXPECT_EQ(GrowthOver(1'000, [&](int) { test::Press(form, "OpenItem"); }), "");
    EXPECT_EQ(opened, 1'200);
    EXPECT_FALSE(PaneText().empty());
}

} // namespace
} // namespace ls
