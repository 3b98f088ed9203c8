#ifndef HYDROFACTS_DEMO_PLOTQT_H
#define HYDROFACTS_DEMO_PLOTQT_H

#include "demo/PropertyCurve.h"
#include "win32/qt/QtView.h"

namespace demo {

/// Draws a curve as it is when the control is painted. It has to outlive the control.
win32::qt::QtView::Painter PlotPainter(const PropertyCurve* curve);

}  // namespace demo

#endif
