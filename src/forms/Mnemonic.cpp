#include "forms/Mnemonic.h"

namespace ls {

namespace {

constexpr qsizetype ShortestWord = 3; // an underlined "a" in "Select a book" would look like a mistake

bool IsFree(QChar letter, QStringView taken)
{
    return letter.isLetterOrNumber() && letter.unicode() < 0x80 && !taken.contains(letter.toUpper());
}

bool BeginsWord(const QString& caption, qsizetype at)
{
    if (at > 0 && caption[at - 1].isLetterOrNumber()) {
        return false;
    }
    qsizetype end = at;
    while (end < caption.size() && caption[end].isLetterOrNumber()) {
        ++end;
    }
    return end - at >= ShortestWord;
}

qsizetype PlaceOf(const QString& caption, QStringView taken)
{
    for (const bool atWord : {true, false}) {
        for (qsizetype at = 0; at < caption.size(); ++at) {
            if (IsFree(caption[at], taken) && (!atWord || BeginsWord(caption, at))) {
                return at;
            }
        }
    }
    return -1;
}

} // namespace

QString WithMnemonic(const QString& caption, QStringView taken)
{
    const auto doubled = [](QString text) { return text.replace(u'&', QStringLiteral("&&")); };
    const qsizetype at = PlaceOf(caption, taken);
    if (at < 0) {
        return doubled(caption);
    }
    return doubled(caption.left(at)) + u'&' + doubled(caption.mid(at));
}

} // namespace ls
