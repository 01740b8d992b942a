#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace ls::test {

/// The standard output of a program. The test fails if the program is missing or fails.
std::string OutputOf(const QString& program, const QStringList& arguments);

/// The value that `pdfinfo` gives for a key of a PDF file, such as "Pages" or "Page size".
std::string PdfInfo(const std::string& pdf, const std::string& key);

/// The rows of text page by page, without empty rows, with each run of blanks as one blank. In `text`, pages
/// end in a form feed and rows in LF.
std::vector<std::vector<std::string>> FoldedPages(const std::string& text);

/// The same for a PDF file.
std::vector<std::vector<std::string>> PdfPages(const std::string& pdf);

/// The pages of a PDF file as grey pictures with 100 dots per inch.
std::vector<QImage> PdfPictures(const std::string& pdf);

/// The share of pixels, from 0 to 1, that differ by more than a third of the range from black to white. 1 if
/// the sizes differ.
double DifferingPart(const QImage& a, const QImage& b);

} // namespace ls::test
