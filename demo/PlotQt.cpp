#include "demo/PlotQt.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QString>
#include <cmath>

#include "win32/CodePage.h"

namespace demo {
namespace {

constexpr QColor kCurveColor(0x19, 0x76, 0xd2);
constexpr QColor kMarkColor(0xd3, 0x2f, 0x2f);
constexpr double kCurveWidth = 2.0;
constexpr double kMarkRadius = 4.0;
constexpr int kFineness = 16;  // parts of a pixel that a picture is computed in, for smooth curves

QString ToUnicode(const std::string& text) {
    QString unicode;
    for (const char c : text) unicode += QChar(win32::ToUtf16(c));
    return unicode;
}

double Pixels(LONG parts) { return static_cast<double>(parts) / kFineness; }

QPointF Fine(const POINT& point) { return {Pixels(point.x), Pixels(point.y)}; }

QPolygonF Curve(const PlotLine& line) {
    QPolygonF polygon;
    for (const POINT& point : line.points) polygon << Fine(point);
    return polygon;
}

// A line one pixel wide is sharp if it runs through the middle of the pixels.
QPolygonF Straight(const PlotLine& line) {
    QPolygonF polygon;
    for (const POINT& point : line.points) {
        polygon << QPointF(std::floor(Pixels(point.x)) + 0.5, std::floor(Pixels(point.y)) + 0.5);
    }
    return polygon;
}

void DrawText(QPainter& painter, const PlotText& text) {
    const QString unicode = ToUnicode(text.text);
    const QFontMetrics metrics = painter.fontMetrics();
    const int width = metrics.horizontalAdvance(unicode);
    const int at = text.x / kFineness;
    const int x = text.align < 0 ? at : text.align > 0 ? at - width : at - width / 2;
    painter.drawText(x, text.y / kFineness + metrics.ascent(), unicode);
}

void Paint(QPainter& painter, QSize size, const PropertyCurve& curve) {
    const QFontMetrics metrics = painter.fontMetrics();
    const int digitWidth = metrics.horizontalAdvance(QLatin1Char('0')) + 1;
    const PlotPicture picture = curve.Draw({size.width() * kFineness, size.height() * kFineness},
                                           metrics.height() * kFineness, digitWidth * kFineness);
    const QPalette palette = QApplication::palette();
    QColor gridColor = palette.color(QPalette::Text);
    gridColor.setAlpha(40);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawPolygon(Straight(picture.frame));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(gridColor, 1.0));
    for (const PlotLine& line : picture.grid) painter.drawPolyline(Straight(line));
    painter.setPen(QPen(palette.color(QPalette::Mid), 1.0));
    painter.drawPolyline(Straight(picture.frame));
    painter.setPen(QPen(kCurveColor, kCurveWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const PlotLine& line : picture.curves) painter.drawPolyline(Curve(line));
    painter.setPen(QPen(palette.color(QPalette::Base), 1.0));
    painter.setBrush(kMarkColor);
    for (const POINT& mark : picture.marks) {
        painter.drawEllipse(Fine(mark), kMarkRadius, kMarkRadius);
    }
    painter.setPen(palette.color(QPalette::WindowText));
    for (const PlotText& text : picture.texts) DrawText(painter, text);
}

}  // namespace

win32::qt::QtView::Painter PlotPainter(const PropertyCurve* curve) {
    return [curve](QPainter& painter, QSize size) { Paint(painter, size, *curve); };
}

}  // namespace demo
