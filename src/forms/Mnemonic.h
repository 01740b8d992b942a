#pragma once

#include <QString>

namespace ls {

/// Marks the letter for Alt in a caption that is made at run time: the initial of the first word of three
/// letters or more whose initial is not in `taken` (capitals), else the first letter that is not taken.
/// Without a free letter nothing is marked. An "&" of the caption stays visible.
[[nodiscard]] QString WithMnemonic(const QString& caption, QStringView taken);

} // namespace ls
