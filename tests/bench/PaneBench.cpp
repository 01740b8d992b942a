#include "bench/Measure.h"
#include "forms/CellMetrics.h"
#include "render/pane/PaintRuns.h"
#include "render/text/RunList.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <chrono>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// Compares a redraw of a full pane, as high as a 4K screen, with the least work of any painter: one call for
// each row that draws its text into the same picture.
namespace {

using namespace ls;

constexpr QSize Picture(3840, 2160);
constexpr int Rounds = 41;
constexpr double Limit = 3; ///< times the time of one call for each row

double MedianMilliseconds(const std::function<void()>& work)
{
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        times.push_back(took.count());
    }
    return bench::MedianOf(std::move(times));
}

// Prose of that width: small letters, blanks and some capitals.
std::string Row(int number, int columns)
{
    static constexpr std::string_view Text = "The advisor asks for what it needs, and explains its Answer. ";
    std::string row;
    for (int column = 0; column < columns; ++column) {
        row += Text[static_cast<std::size_t>(column + number) % Text.size()];
    }
    return row;
}

// One style for a whole row, or a change of style every `pieceLength` characters.
RunList Print(int rows, int columns, int pieceLength)
{
    RunList list;
    for (int number = 0; number < rows; ++number) {
        const std::string row = Row(number, columns);
        const auto length = static_cast<std::size_t>(pieceLength);
        for (std::size_t at = 0; at < row.size(); at += length) {
            list.SetBold(at / length % 4 == 1);
            list.SetItalic(at / length % 4 == 2);
            list.SetUnderline(at / length % 4 == 3);
            list.SetColour(at / length % 4 == 3 ? DarkRed : Black);
            list.Print(row.substr(at, length), at + length >= row.size());
        }
    }
    return list;
}

struct Scene
{
    const char* name;
    double scale;
    int pieceLength; ///< characters between changes of style; 0: none
};

void Measure(const Scene& scene)
{
    QImage image(Picture, QImage::Format_RGB32);
    image.setDevicePixelRatio(scene.scale);
    const CellMetrics metrics = MeasureCells(96);
    const QRectF area(QPointF(), QSizeF(Picture) / scene.scale);
    const int rows = static_cast<int>(area.height() / metrics.rowHeight);
    const int columns = static_cast<int>(area.width() / metrics.charWidth);
    const RunList list = Print(rows, columns, scene.pieceLength == 0 ? columns : scene.pieceLength);

    const double pane = MedianMilliseconds([&] {
        QPainter painter(&image);
        painter.fillRect(area, Qt::white);
        PaintRuns(painter, list.Runs(), metrics, area);
    });
    std::vector<QString> texts;
    for (int number = 0; number < rows; ++number) {
        texts.push_back(QString::fromStdString(Row(number, columns)));
    }
    const double plain = MedianMilliseconds([&] {
        QPainter painter(&image);
        painter.fillRect(area, Qt::white);
        painter.setFont(metrics.fonts[RegularFace]);
        for (int number = 0; number < rows; ++number) {
            painter.drawText(QPointF(0, number * metrics.rowHeight + metrics.baseline),
                             texts[static_cast<std::size_t>(number)]);
        }
    });
    const std::string size = std::to_string(rows) + " rows of " + std::to_string(columns);
    bench::PrintRow(scene.name + (", " + size), bench::Milliseconds(pane), pane / plain, Limit);
    bench::PrintRow("  one call a row", bench::Milliseconds(plain));
}

// A line of 100 MiB must take no longer than its visible cells.
void MeasureHugeRun()
{
    QImage image(Picture, QImage::Format_RGB32);
    const CellMetrics metrics = MeasureCells(96);
    RunList list;
    list.Print(std::string(100U * 1024U * 1024U, 'W'), true);
    const double time = MedianMilliseconds([&] {
        QPainter painter(&image);
        PaintRuns(painter, list.Runs(), metrics, QRectF(QPointF(), QSizeF(Picture)));
    });
    bench::PrintRow("one row of 100 MiB", bench::Milliseconds(time));
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    bench::PrintHead("Redrawing the pane", "A full pane of 3840 x 2160 pixels, compared with one text "
                                           "drawing call a row, by the clock on the wall.");
    for (const Scene& scene :
         {Scene{"plain text", 1, 0}, Scene{"a new style every 20 characters", 1, 20},
          Scene{"a new style every 5 characters", 1, 5}, Scene{"plain text, scale 1.5", 1.5, 0},
          Scene{"plain text, scale 2", 2, 0}, Scene{"every 20 characters, scale 2", 2, 20}}) {
        Measure(scene);
    }
    MeasureHugeRun();
    return 0;
}
