#pragma once

#include "base/Seams.h"

#include <memory>
#include <string>

namespace ls {

struct Book;
class OutputFile;

/// The Export command of the main window: asks for a file name and exports the shown topic.
void ExportItem_Click(const Book& book, const Seams& seams);

/// Opens the file for an exported topic. An older file of that name stays until the new one is finished. With
/// `replace` false it stays for good, and finishing fails. The open book's own file is refused with error 55.
/// Null after a message.
std::unique_ptr<OutputFile> OpenExportFile(const Book& book, const Seams& seams, const std::string& path,
                                           bool replace = true);

} // namespace ls
