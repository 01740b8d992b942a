#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace ls::test {

/// What a program prints on standard output; one that is missing or fails fails the test.
std::string OutputOf(const QString& program, const QStringList& arguments);

/// What `pdfinfo` tells of a PDF file behind a key, such as "Pages" or "Page size".
std::string PdfInfo(const std::string& pdf, const std::string& key);

/// The rows of text that have any, page after page, with runs of blanks folded into one. Pages end with form
/// feeds, rows with LF.
std::vector<std::vector<std::string>> FoldedPages(const std::string& text);

/// The same of a PDF file.
std::vector<std::vector<std::string>> PdfPages(const std::string& pdf);

/// The pages of a PDF file as grey pictures of 100 dots to the inch.
std::vector<QImage> PdfPictures(const std::string& pdf);

/// The part of two pictures' pixels, from 0 to 1, that differ by more than a third of the way from black to
/// white; 1 when their sizes differ.
double DifferingPart(const QImage& a, const QImage& b);

} // namespace ls::test
