#ifndef HYDROFACTS_DEMO_PROPERTYCURVE_H
#define HYDROFACTS_DEMO_PROPERTYCURVE_H

#include <string>
#include <vector>

#include "win32/Win32.h"

class CFluid;
class Units;

namespace demo {

/// What can be plotted.
enum class Property { Density, Viscosity, VaporPressure, HeatRatio };

/// A line through points in pixels.
struct PlotLine {
    std::vector<POINT> points;
};

/// A line of text whose top is at `y`; it stands left of `x` (1), centred (0) or right of it (-1).
struct PlotText {
    int x;
    int y;
    int align;
    std::string text;  ///< Windows-1252
};

/// A plot, ready to be drawn from the origin.
struct PlotPicture {
    PlotLine frame;
    std::vector<PlotLine> grid;
    std::vector<PlotLine> curves;
    std::vector<POINT> marks;
    std::vector<PlotText> texts;
};

/// Round numbers on an axis: multiples of 1, 2 or 5 times a power of ten.
struct Ticks {
    double step;
    std::vector<double> values;
};

/// The ticks from `lowest` to `highest`, at most `most` steps apart; `most` below 1 counts as 1.
Ticks MakeTicks(double lowest, double highest, int most);

/// The text of a tick, with as many decimals as its step needs.
std::string TickText(double value, double step, char decimalSign);

/// The curve of a fluid's property over temperature, at the pressure of the fluid, in the user's
/// units, with a mark at the set point.
class PropertyCurve {
  public:
    /// Computes the curve of a table fluid over the temperatures of its table at which it is in its
    /// present state; the vapor pressure, that of any pressure, up to the critical temperature, and
    /// of a blend both for bubbles and for dew. A user-defined fluid has nothing but the mark.
    /// `title` names the property, in Windows-1252. False if there is nothing to be seen: the fluid
    /// is in the state none, or its state has no such property.
    bool Set(const CFluid& fluid, const Units& units, Property property, std::string title);

    /// Nothing but a message.
    void Clear(std::string message);

    void SetDecimalSign(char sign) { decimalSign_ = sign; }

    /// The picture for an area in pixels and a font of this line height and mean width.
    PlotPicture Draw(SIZE size, int textHeight, int charWidth) const;

  private:
    struct Point {
        double x;
        double y;
    };
    using Curve = std::vector<Point>;
    class Sampler;
    class Painting;

    std::vector<Curve> curves_;
    std::vector<Point> marks_;
    std::string temperatureUnit_;
    std::string title_;
    std::string message_;
    char decimalSign_ = '.';
};

}  // namespace demo

#endif
