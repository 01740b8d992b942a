#pragma once

#include "base/FormSeams.h"
#include "base/Seams.h"

class QWidget;

namespace ls {

struct Global;

/// Shows the file form over `parent`, told and answering by `global.fileDialog` (and `global.book.LockBook`,
/// when it asks about sharing), and returns when it is closed.
void ShowFileForm(QWidget* parent, Global& global, const Seams& seams, const FormSeams& forms);

} // namespace ls
