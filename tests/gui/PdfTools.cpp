#include "gui/PdfTools.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>
#include <numeric>
#include <sstream>

namespace ls::test {

namespace {

constexpr int ClearDifference = 85;
constexpr int DotsPerInch = 100;
// The painter moves the letters of some kinds of fonts to whole dots. So it paints with smaller dots.
constexpr int Finer = 4;
constexpr int LongestMilliseconds = 60'000;

// Reduces a picture: each pixel is the mean of a square of pixels.
QImage Reduced(const QImage& fine)
{
    QImage picture(fine.width() / Finer, fine.height() / Finer, QImage::Format_Grayscale8);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            int sum = 0;
            for (int row = 0; row < Finer; ++row) {
                const uchar* const dots = fine.constScanLine(y * Finer + row) + x * Finer;
                sum = std::accumulate(dots, dots + Finer, sum);
            }
            picture.scanLine(y)[x] = static_cast<uchar>(sum / (Finer * Finer));
        }
    }
    return picture;
}

std::string Folded(const std::string& row)
{
    std::istringstream words(row);
    std::string folded;
    for (std::string word; words >> word;) {
        folded += (folded.empty() ? "" : " ") + word;
    }
    return folded;
}

} // namespace

std::string OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    const bool ended = process.waitForFinished(LongestMilliseconds);
    EXPECT_TRUE(ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        << program.toStdString() << " " << arguments.join(QLatin1Char(' ')).toStdString() << ": "
        << process.errorString().toStdString() << " " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().toStdString();
}

std::string PdfInfo(const std::string& pdf, const std::string& key)
{
    std::istringstream lines(OutputOf(QStringLiteral("pdfinfo"), {QString::fromStdString(pdf)}));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(key + ":")) {
            return Folded(line.substr(key.size() + 1));
        }
    }
    return "(none)";
}

std::vector<std::vector<std::string>> FoldedPages(const std::string& text)
{
    std::vector<std::vector<std::string>> pages;
    std::istringstream whole(text);
    for (std::string page; std::getline(whole, page, '\f');) {
        std::istringstream rows(page);
        std::vector<std::string>& folded = pages.emplace_back();
        for (std::string row; std::getline(rows, row);) {
            if (const std::string words = Folded(row); !words.empty()) {
                folded.push_back(words);
            }
        }
    }
    return pages;
}

std::vector<std::vector<std::string>> PdfPages(const std::string& pdf)
{
    return FoldedPages(OutputOf(QStringLiteral("pdftotext"),
                                {QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8"),
                                 QString::fromStdString(pdf), QStringLiteral("-")}));
}

std::vector<QImage> PdfPictures(const std::string& pdf)
{
    const QTemporaryDir folder;
    OutputOf(QStringLiteral("pdftoppm"),
             {QStringLiteral("-r"), QString::number(DotsPerInch * Finer), QStringLiteral("-gray"),
              QString::fromStdString(pdf), folder.filePath(QStringLiteral("p"))});
    std::vector<QImage> pictures;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files, QDir::Name)) {
        pictures.push_back(Reduced(QImage(folder.filePath(name)).convertToFormat(QImage::Format_Grayscale8)));
    }
    return pictures;
}

double DifferingPart(const QImage& a, const QImage& b)
{
    if (a.size() != b.size() || a.isNull()) {
        return 1;
    }
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const rowA = a.constScanLine(y);
        const uchar* const rowB = b.constScanLine(y);
        for (int x = 0; x < a.width(); ++x) {
            differing += std::abs(rowA[x] - rowB[x]) > ClearDifference ? 1 : 0;
        }
    }
    return static_cast<double>(differing) / (a.width() * a.height());
}

} // namespace ls::test
