#pragma once

#include <QString>

namespace ls {

/// Marks the letter for Alt in a caption that is made at run time. A letter is free if it is not in `taken`
/// (capitals). The first free initial of a word of three letters or more is marked, else the first free
/// letter, else nothing. An "&" of the caption stays visible.
[[nodiscard]] QString WithMnemonic(const QString& caption, QStringView taken);

} // namespace ls
