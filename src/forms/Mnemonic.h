#pragma once

#include <QString>

namespace ls {

/// A caption that is made while the program runs, with its letter for Alt marked: that of the first word of
/// three letters or more whose letter is not `taken` (capitals), else the first letter that is free. What is
/// an
/// "&" of the caption stays one that is seen. Without a free letter nothing is marked.
[[nodiscard]] QString WithMnemonic(const QString& caption, QStringView taken);

} // namespace ls
