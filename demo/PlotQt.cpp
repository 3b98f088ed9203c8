#include "demo/PlotQt.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QString>

#include "win32/CodePage.h"

namespace demo {
namespace {

constexpr QColor kCurveColor(0x19, 0x76, 0xd2);
constexpr QColor kMarkColor(0xd3, 0x2f, 0x2f);
constexpr double kCurveWidth = 2.0;
constexpr double kMarkRadius = 4.0;

QString ToUnicode(const std::string& text) {
    QString unicode;
    for (const char c : text) unicode += QChar(win32::ToUtf16(c));
    return unicode;
}

// A line one pixel wide is sharp if it runs through the middle of the pixels.
QPolygonF Polygon(const PlotLine& line) {
    QPolygonF polygon;
    for (const POINT& point : line.points) polygon << QPointF(point.x + 0.5, point.y + 0.5);
    return polygon;
}

void DrawText(QPainter& painter, const PlotText& text) {
    const QString unicode = ToUnicode(text.text);
    const QFontMetrics metrics = painter.fontMetrics();
    const int width = metrics.horizontalAdvance(unicode);
    const int x = text.align < 0 ? text.x : text.align > 0 ? text.x - width : text.x - width / 2;
    painter.drawText(x, text.y + metrics.ascent(), unicode);
}

void Paint(QPainter& painter, QSize size, const PropertyCurve& curve) {
    const QFontMetrics metrics = painter.fontMetrics();
    const PlotPicture picture =
        curve.Draw({size.width(), size.height()}, metrics.height(),
                   metrics.horizontalAdvance(QStringLiteral("0123456789")) / 10 + 1);
    const QPalette palette = QApplication::palette();
    QColor gridColor = palette.color(QPalette::Text);
    gridColor.setAlpha(40);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawPolygon(Polygon(picture.frame));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(gridColor, 1.0));
    for (const PlotLine& line : picture.grid) painter.drawPolyline(Polygon(line));
    painter.setPen(QPen(palette.color(QPalette::Mid), 1.0));
    painter.drawPolyline(Polygon(picture.frame));
    painter.setPen(QPen(kCurveColor, kCurveWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const PlotLine& line : picture.curves) painter.drawPolyline(Polygon(line));
    painter.setPen(QPen(palette.color(QPalette::Base), 1.0));
    painter.setBrush(kMarkColor);
    for (const POINT& mark : picture.marks) {
        painter.drawEllipse(QPointF(mark.x + 0.5, mark.y + 0.5), kMarkRadius, kMarkRadius);
    }
    painter.setPen(palette.color(QPalette::WindowText));
    for (const PlotText& text : picture.texts) DrawText(painter, text);
}

}  // namespace

win32::qt::QtView::Painter PlotPainter(const PropertyCurve* curve) {
    return [curve](QPainter& painter, QSize size) { Paint(painter, size, *curve); };
}

}  // namespace demo
