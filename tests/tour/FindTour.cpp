// Steps that find text in the topic on show and enlarge the type.

#include "Tour.h"

#include "render/pane/ReadingPane.h"

#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QRegularExpression>
#include <QtTest/qtestkeyboard.h>

namespace ls {

namespace {

/// The most frequent word of at least four letters.
QString CommonWord(const QString& text)
{
    QMap<QString, int> counts;
    for (const QString& word : text.toLower().split(QRegularExpression(QStringLiteral("\\W+"))))
        if (word.size() >= 4)
            ++counts[word];
    QString common;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        if (it.value() > counts.value(common))
            common = it.key();
    return common;
}

} // namespace

bool Tour::TakeFind()
{
    return TakeSteps({{"find", &Tour::FindText}, {"larger", &Tour::EnlargeType}});
}

Tour::Fault Tour::Pick(const char* menu, const char* item) const
{
    const Fault fault = OpenMenu(menu);
    return fault.isEmpty() ? ClickItem(m_window, menu, item) : fault;
}

/// Finds a word that occurs several times in the topic.
Tour::Fault Tour::FindText()
{
    const QString word = CommonWord(QString::fromStdString(m_pane->Topic().Text()));
    if (const Fault fault = Pick("EditMenu", "FindItem"); !fault.isEmpty())
        return fault;
    auto* box = m_window.findChild<QLineEdit*>(QStringLiteral("FindBox"));
    const auto* count = m_window.findChild<QLabel*>(QStringLiteral("FindCount"));
    if (box == nullptr || count == nullptr || !box->isVisible())
        return QStringLiteral("no find bar opens");
    QTest::keyClicks(box, word);
    if (!count->text().startsWith(QStringLiteral("1 of ")))
        return QStringLiteral("of %1 the bar says: %2").arg(word, count->text());
    if (m_pane->SelectedText().compare(word, Qt::CaseInsensitive) != 0)
        return QStringLiteral("%1 is not selected").arg(word);
    return {};
}

/// Enlarges the type three times; every row must still fit.
Tour::Fault Tour::EnlargeType()
{
    const double before = m_pane->CharWidth();
    for (int i = 0; i < 3; ++i)
        if (const Fault fault = Pick("ActionMenu", "LargerItem"); !fault.isEmpty())
            return fault;
    if (m_pane->CharWidth() < 1.5 * before)
        return QStringLiteral("the type is hardly larger");
    for (const Run& run : m_pane->Runs())
        if ((run.firstColumn - 1 + static_cast<int>(run.text.size())) * m_pane->CharWidth() >
            m_pane->InnerWidth())
            return QStringLiteral("a row is cut off");
    return {};
}

} // namespace ls
