#pragma once

#include "base/Seams.h"

#include <memory>
#include <string>

namespace ls {

struct Book;
class OutputFile;

/// The Export command of the main window: asks for a file's name and exports the topic on show to it.
void ExportItem_Click(const Book& book, const Seams& seams);

/// Opens the file that a topic of this book is exported to. An older one of that name stays as it was until
/// the new one is finished; with `replace` false it stays for good, and the new one cannot be finished. The
/// open book's own file is refused with error 55. Nothing after a message.
std::unique_ptr<OutputFile> OpenExportFile(const Book& book, const Seams& seams, const std::string& path,
                                           bool replace = true);

} // namespace ls
