// A frame of driven cranes: one position solved, and what moves drawn over the picture.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "calculation/calculation.h"
#include "diagrams/diagrams.h"
#include "platform/qt/qt_surface.h"
#include "runways.h"

namespace borvik {
namespace {

void driveFrame(benchmark::State& state) {
    static char name[] = "bench", platform[] = "-platform", offscreen[] = "offscreen";
    static char* arguments[] = {name, platform, offscreen, nullptr};
    static int count = 3;
    static const QGuiApplication application(count, arguments);  // fonts want one
    Session session = runway(static_cast<int>(state.range(0)), 30000, RunwayCranes::Independent);
    MessageList messages;
    Progress progress;
    if (!Calculate(session, messages, progress)) throw std::runtime_error(messages.texts.back());
    CraneDrive drive(session.project, *session.results);
    const DiagramData data{session.project, &*session.results, &drive};
    const std::vector<Diagram> pictures[] = {{Diagram::Sketch}, {Diagram::UlsMyVz}};
    QImage images[] = {QImage(1600, 250, QImage::Format_ARGB32_Premultiplied),
                       QImage(1600, 500, QImage::Format_ARGB32_Premultiplied)};
    const QImage still[] = {images[0], images[1]};
    int j = 0;
    for (auto _ : state) {
        drive.moveTo(j, 20);
        j = (j + 1) % drive.cranes().steps().N1;
        for (int picture = 0; picture < 2; ++picture) {
            QPainter painter(&images[picture]);
            painter.drawImage(0, 0, still[picture]);
            painter.setRenderHint(QPainter::Antialiasing);
            QtSurface surface(painter, QRectF(images[picture].rect()));
            drawPicture(surface, pictures[picture], data, {}, DiagramLayer::Moving);
        }
    }
}

BENCHMARK(driveFrame)->Arg(3)->Arg(30)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace borvik
