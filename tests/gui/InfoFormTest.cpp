#include "authoring/InfoForm.h"

#include "book/Book.h"
#include "gui/Controls.h"
#include "gui/MainFormFixture.h"
#include "support/TestSeams.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

namespace ls {
namespace {

using test::Find;

struct InfoFormTest : testing::Test
{
    test::TestSeams world;
    Book book;
    std::unique_ptr<InfoForm> form;

    InfoFormTest()
    {
        book.BookAuthor = "Ren\xE9";
        book.BookCopyright = "\xA9 2001";
        book.BookUrl = "http://x.y/";
        book.BookPost = "YES";
    }

    void Load()
    {
        form = std::make_unique<InfoForm>(nullptr, book, world.Get());
        test::ShowActive(*form);
    }

    [[nodiscard]] std::string Box(const char* name) const
    {
        return Find<QLineEdit>(*form, name)->text().toStdString();
    }
    [[nodiscard]] QCheckBox& Check() const { return *Find<QCheckBox>(*form, "WebPostCheck"); }
};

TEST_F(InfoFormTest, load_showsFields)
{
    Load();
    EXPECT_EQ(Box("AuthorBox"), "Ren\xC3\xA9");
    EXPECT_EQ(Box("CopyrightBox"), "\xC2\xA9 2001");
    EXPECT_EQ(Box("WebURLBox"), "http://x.y/");
    EXPECT_TRUE(Check().isChecked());
    test::TakePicture(*form, "InfoForm");
}

TEST_F(InfoFormTest, ok_takesTheBoxesAndCloses)
{
    Load();
    test::Type(*form, "AuthorBox", QStringLiteral(" A "));
    test::Type(*form, "CopyrightBox", QStringLiteral("C"));
    test::Type(*form, "WebURLBox", QString());
    test::Press(*form, "OKBox");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.BookAuthor, " A ");
    EXPECT_EQ(book.BookCopyright, "C");
    EXPECT_EQ(book.BookUrl, "");
    EXPECT_EQ(book.BookPost, "YES");
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(InfoFormTest, checkTheBox_storesYes)
{
    book.BookPost.clear();
    Load();
    Check().click();
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible()) << "Enter is O.K.";
    EXPECT_EQ(book.BookPost, "YES");
}

TEST_F(InfoFormTest, cancelAndEscape_changeNothing)
{
    for (const bool escape : {false, true}) {
        Load();
        test::Type(*form, "AuthorBox", QStringLiteral("X"));
        if (escape) {
            QTest::keyClick(form->windowHandle(), Qt::Key_Escape);
        } else {
            test::Press(*form, "CancelBox");
        }
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(book.BookAuthor, "Ren\xE9");
        EXPECT_EQ(book.BookPost, "YES");
        EXPECT_FALSE(book.BookChanged);
    }
}

TEST_F(InfoFormTest, valueThatWouldBeMisread_asksAndStaysOpen)
{
    Load();
    test::Type(*form, "AuthorBox", QStringLiteral("A\"/B"));
    world.messages.replies = {Reply::Cancel};
    test::Press(*form, "OKBox");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(world.messages.Take().size(), 1U);
    EXPECT_EQ(book.BookAuthor, "Ren\xE9");
    world.messages.replies = {Reply::Ok};
    test::Press(*form, "OKBox");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(world.messages.Take().size(), 1U);
    EXPECT_EQ(book.BookAuthor, "A\"/B");
}

TEST_F(InfoFormTest, okUntouched_keepsEveryByte)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '"' && byte != '/') {
            bytes += static_cast<char>(byte);
        }
    }
    book.BookCopyright = bytes;
    Load();
    test::Press(*form, "OKBox");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(book.BookCopyright, bytes);
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(InfoFormTest, longValues_areKeptWhole)
{
    const std::string author(40000, 'a');
    book.BookAuthor = book.BookCopyright = book.BookUrl = author;
    Load();
    test::Press(*form, "OKBox");
    EXPECT_EQ(book.BookAuthor, author);
    EXPECT_EQ(book.BookCopyright, author);
    EXPECT_EQ(book.BookUrl, author);
}

struct EditPropertiesTest : MainFormFixture
{
};

TEST_F(EditPropertiesTest, address_showsAndHidesTheExplainButton)
{
    Start(WriteThree());
    EXPECT_FALSE(Visible("ExplainButton"));
    const auto enter = [](const QString& address) {
        return [address](QWidget& info) {
            test::Type(info, "WebURLBox", address);
            test::Press(info, "OKBox");
        };
    };
    test::ModalScript script;
    script.Do(enter(QStringLiteral("http://x")));
    test::Press(form, "EditPropertiesOption");
    EXPECT_TRUE(Visible("ExplainButton"));
    script.Do(enter(QString()));
    test::Press(form, "EditPropertiesOption");
    EXPECT_FALSE(Visible("ExplainButton"));
    EXPECT_EQ(script.Seen(), (Strings{"form|InfoForm|LSAdvisor File Information",
                                      "form|InfoForm|LSAdvisor File Information"}));
    EXPECT_TRUE(global.book.BookChanged);
    global.book.BookChanged = false;
}

} // namespace
} // namespace ls
