// What readers with other fonts and colours need: a larger font cuts no caption, forms have the desktop's
// colours, and the page stays black on white.

#include "files/FileForm.h"
#include "forms/FormStyle.h"
#include "forms/TitleWidth.h"
#include "gui/EveryForm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPalette>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

#include <gtest/gtest-spi.h>

namespace ls {
namespace {

std::string NameOf(const QWidget& control)
{
    return control.objectName().isEmpty() ? control.metaObject()->className()
                                          : control.objectName().toStdString();
}

// The size that a control needs to show its whole caption; 0 for one that scrolls.
QSize Needed(const QWidget& control)
{
    if (const auto* label = qobject_cast<const QLabel*>(&control); label != nullptr && label->wordWrap()) {
        return {0, label->heightForWidth(label->width())};
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control);
        button != nullptr && button->text().isEmpty()) {
        return button->iconSize();
    }
    if (control.inherits("QLabel") || control.inherits("QAbstractButton")) {
        return control.sizeHint();
    }
    if (control.inherits("QGroupBox")) {
        return control.minimumSizeHint();
    }
    if (control.inherits("QLineEdit") && control.parentWidget()->inherits("QComboBox")) {
        return {0, control.fontMetrics().height()}; // the frame belongs to the combo box
    }
    const bool oneRow = control.inherits("QComboBox") || control.inherits("QLineEdit");
    return {0, oneRow ? control.sizeHint().height() : 0};
}

bool IsSeen(const QWidget& control, const QWidget& window)
{
    return control.isVisibleTo(&window) && control.window() == &window && !control.inherits("QMenu");
}

void ExpectNothingIsCut(const std::string& name, const QWidget& window)
{
    for (const auto* control : window.findChildren<QWidget*>()) {
        if (!IsSeen(*control, window) || control->objectName().startsWith(QStringLiteral("qt_scrollarea"))) {
            continue;
        }
        const QSize needed = Needed(*control);
        EXPECT_GE(control->width(), needed.width()) << name << ", " << NameOf(*control) << " is too narrow";
        EXPECT_GE(control->height(), needed.height()) << name << ", " << NameOf(*control) << " is too low";
        EXPECT_TRUE(!needed.isValid() || needed.height() == 0 ||
                    control->parentWidget()->rect().contains(control->geometry()))
            << name << ", " << NameOf(*control) << " is outside of " << NameOf(*control->parentWidget());
    }
}

// Sets the desktop's font for one test. The main window must be made after it.
struct DesktopFont
{
    explicit DesktopFont(double points)
    {
        QFont font = before;
        font.setPointSizeF(points);
        QApplication::setFont(font);
    }
    ~DesktopFont() { QApplication::setFont(before); }
    DesktopFont(const DesktopFont&) = delete;
    DesktopFont& operator=(const DesktopFont&) = delete;

    const QFont before = QApplication::font();
};

struct SetsFont
{
    explicit SetsFont(double points) : font(points) {}
    DesktopFont font;
};

template <int Points>
struct FormsAt : SetsFont, EveryForm
{
    FormsAt() : SetsFont(Points) {}

    void ExpectAllFit()
    {
        int forms = 0;
        ForEach([&forms](const std::string& name, QWidget& window) {
            ExpectNothingIsCut(name, window);
            ++forms;
        });
        EXPECT_EQ(forms, 24);
    }
};

using FormsAt9Points = FormsAt<9>;
using FormsAt14Points = FormsAt<14>;
using FormsAt20Points = FormsAt<20>;

TEST_F(FormsAt9Points, captions_areWhole)
{
    ExpectAllFit();
    EXPECT_DOUBLE_EQ(form.font().pointSizeF(), 9.75) << "never smaller than designed";
}

TEST_F(FormsAt14Points, captions_areWhole)
{
    ExpectAllFit();
    EXPECT_DOUBLE_EQ(form.font().pointSizeF(), 14);
}

TEST_F(FormsAt20Points, captions_areWhole)
{
    ExpectAllFit();
}

// The pane's type size has its own commands. The desktop's font only changes the pane's place.
TEST_F(FormsAt14Points, pane_keepsItsTypeAndItsRoom)
{
    StartOnFullBook();
    const auto& pane = Get<ReadingPane>("MsgPic");
    EXPECT_GE(pane.InnerWidth() / pane.TextWidth("W"), 80.25);
    EXPECT_GE(pane.InnerHeight() / pane.TextHeight("W"), 25);
}

TEST_F(FormsAt14Points, mainWindow_growsFromItsNewDesign)
{
    StartOnFullBook();
    const int width = Get<QWidget>("MsgPic").width();
    const int below = form.height() - Get<QWidget>("DoneButton").geometry().bottom();
    form.resize(form.width() + 200, form.height() + 100);
    Settle();
    EXPECT_GE(Get<QWidget>("MsgPic").width(), width + 198);
    EXPECT_EQ(form.height() - Get<QWidget>("DoneButton").geometry().bottom(), below);
    ExpectNothingIsCut("a larger MainForm", form);
}

struct FormFitTest : EveryForm
{
};

TEST_F(FormFitTest, captionThatIsCut_isFound)
{
    QWidget window;
    QPushButton button(QStringLiteral("A long caption"), &window);
    button.setGeometry(0, 0, 10, 30);
    window.show();
    int cuts = 0;
    {
        testing::TestPartResultArray results;
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        ExpectNothingIsCut("a window", window);
        cuts = results.size();
    }
    EXPECT_EQ(cuts, 1);
}

TEST_F(FormFitTest, folderTooLongForTheFileForm_losesItsMiddleOnly)
{
    FileDialog& dialog = global.fileDialog;
    dialog.FileMode = "R";
    dialog.DefaultFolder = "/first" + std::string(300, 'x') + "/last";
    test::ModalScript script;
    script.Do([](QWidget& chooser) {
        const auto* label = test::Find<QLabel>(chooser, "DefaultLabel");
        EXPECT_TRUE(label->text().startsWith(QStringLiteral("Default folder: /first")));
        EXPECT_TRUE(label->text().endsWith(QStringLiteral("/last")));
        EXPECT_LE(label->sizeHint().width(), label->width());
        EXPECT_TRUE(label->toolTip().contains(QString(300, QLatin1Char('x'))));
        chooser.close();
    });
    FileForm(&form, global.fileDialog, global.book, global.settings, seams,
             {*volumes, dde, registry, printer})
        .Run();
}

TEST_F(FormFitTest, boxes_areWideEnoughForTheirTitles)
{
    const std::string title = "A title that is much longer than the text of its box";
    int boxes = 0;
    const auto look = [&boxes](QWidget& box) {
        EXPECT_GE(box.width(), TitleWidth(box.windowTitle()));
        ++boxes;
        box.close();
    };
    test::ModalScript script;
    script.Do(look).Do(look);
    messages.MsgBox("No.", Icon::None);
    messages.InputBox("a", title, "");
    EXPECT_EQ(boxes, 2);
}

QPalette DarkPalette()
{
    QPalette dark(QColor(53, 53, 53));
    dark.setColor(QPalette::Window, QColor(53, 53, 53));
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    dark.setColor(QPalette::Highlight, QColor(200, 160, 0));
    return dark;
}

struct DarkDesktop
{
    DarkDesktop() { QApplication::setPalette(DarkPalette()); }
    ~DarkDesktop() { QApplication::setPalette(before); }
    DarkDesktop(const DarkDesktop&) = delete;
    DarkDesktop& operator=(const DarkDesktop&) = delete;

    const QPalette before = QApplication::palette();
};

// The pane without its border, whose colour is the desktop's if the pane has the focus.
QImage PagePicture(const ReadingPane& pane)
{
    return const_cast<ReadingPane&>(pane).grab(pane.contentsRect()).toImage();
}

TEST_F(FormFitTest, darkDesktop_pageAndSelectionLookAsEver)
{
    StartOnFullBook();
    const auto& pane = Get<ReadingPane>("MsgPic");
    Get<QWidget>("DoneButton").setFocus();
    const QImage page = PagePicture(pane);
    test::Press(form, "SelectAllItem");
    const QImage selected = PagePicture(pane);
    EXPECT_NE(page, selected);
    const DarkDesktop dark;
    QCoreApplication::processEvents();
    EXPECT_EQ(PagePicture(pane), selected);
    test::Press(form, "NextItem");
    test::Press(form, "PrevTopic");
    EXPECT_EQ(PagePicture(pane), page);
    EXPECT_EQ(page.pixelColor(page.width() - 1, page.height() - 1), QColor(Qt::white));
}

// The contrast between the edge of an empty box and its middle.
int EdgeContrast(QAbstractButton& button)
{
    const QImage picture = button.grab().toImage();
    QStyleOptionButton option;
    option.initFrom(&button);
    const bool circle = button.inherits("QRadioButton");
    const QRect box = button.style()->subElementRect(
        circle ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, &button);
    const int middle = picture.pixelColor(box.center()).lightness();
    int most = 0;
    for (int x = box.left(); x <= box.center().x(); ++x) {
        most = std::max(most, std::abs(picture.pixelColor(x, box.center().y()).lightness() - middle));
    }
    return most;
}

TEST_F(FormFitTest, darkDesktop_emptyBoxesAreSeen)
{
    const DarkDesktop dark;
    QWidget window;
    QCheckBox box(QStringLiteral("box"), &window);
    QRadioButton circle(QStringLiteral("circle"), &window);
    circle.move(0, 40);
    window.show();
    const QString before = QApplication::style()->name();
    SetFormStyle();
    EXPECT_GT(EdgeContrast(box), 80);
    EXPECT_GT(EdgeContrast(circle), 80);
    QApplication::setStyle(before);
}

// A form with fixed colours would be bright on a dark desktop, or black on black.
TEST_F(FormFitTest, darkDesktop_everyFormFollows)
{
    const DarkDesktop dark;
    ForEach([](const std::string& name, QWidget& window) {
        EXPECT_LT(window.palette().color(QPalette::Window).lightness(), 100) << name;
        for (const auto* control : window.findChildren<QWidget*>()) {
            if (control->objectName() == QStringLiteral("MsgPic") || !IsSeen(*control, window)) {
                continue;
            }
            const QPalette& colours = control->palette();
            EXPECT_LT(colours.color(QPalette::Base).lightness(), 100) << name << ", " << NameOf(*control);
            EXPECT_GT(colours.color(QPalette::Text).lightness(), 150) << name << ", " << NameOf(*control);
            EXPECT_GT(colours.color(QPalette::WindowText).lightness(), 150)
                << name << ", " << NameOf(*control);
        }
    });
}

} // namespace
} // namespace ls
