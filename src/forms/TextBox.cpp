#include "forms/TextBox.h"

#include "forms/CellMetrics.h"

#include <QPlainTextEdit>
#include <QTextBlock>

namespace ls {

namespace {

constexpr int TabColumns = 5; // the width of a leading TAB in the display

// Uses the raw text, because the plain text turns a no-break space into an ordinary one.
QString RawText(const QPlainTextEdit& box)
{
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

} // namespace

std::string TextOf(const QPlainTextEdit& box)
{
    return RawText(box).toStdString();
}

void SetFixedPitch(QPlainTextEdit& box)
{
    const CellMetrics cells = MeasureCells(box.logicalDpiY());
    box.setFont(cells.fonts[RegularFace]);
    box.setTabStopDistance(TabColumns * cells.charWidth);
}

// Counts lines in the text, not the box's paragraphs, because a soft line break ends a line too.
void SelectLine(QPlainTextEdit& box, int line)
{
    const QString text = RawText(box);
    qsizetype start = 0;
    for (int i = 1; i < line; ++i) {
        start = text.indexOf(u'\n', start) + 1;
    }
    const qsizetype end = text.indexOf(u'\n', start);
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(end < 0 ? text.size() : end), QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
}

} // namespace ls
