#ifndef HYDROFACTS_DEMO_PLOTGDI_H
#define HYDROFACTS_DEMO_PLOTGDI_H

#include "demo/PropertyCurve.h"

namespace demo {

/// Draws a curve on the control that WM_DRAWITEM asks for, in the font of that control.
void DrawPlot(const DRAWITEMSTRUCT& item, const PropertyCurve& curve);

}  // namespace demo

#endif
