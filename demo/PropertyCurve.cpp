#include "demo/PropertyCurve.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "hydrofacts/fluid/CFluid.h"

namespace demo {
namespace {

constexpr int kSteps = 160;
constexpr int kBisections = 40;      // to the end of a curve between two steps
constexpr double kHalfWidth = 50.0;  // of a plot with nothing but a mark, in degrees
constexpr double kFromZero = 0.5;    // an axis begins at 0 if the lowest value is below this part

bool IsGood(double value) { return std::isfinite(value) && value > 0.0; }

int Pixel(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

Ticks MakeTicks(double lowest, double highest, int most) {
    if (!std::isfinite(lowest) || !std::isfinite(highest) || !(highest > lowest)) return {1.0, {}};
    const double least = (highest - lowest) / std::max(most, 1);
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    double step = 10.0 * power;
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * (1.0 - 1e-9)) {
            step = factor * power;
            break;
        }
    }
    Ticks ticks{step, {}};
    const double first = std::ceil(lowest / step - 1e-9);
    const double last = std::floor(highest / step + 1e-9);
    for (double i = first; i <= last; i += 1.0) ticks.values.push_back(i * step + 0.0);
    return ticks;
}

std::string TickText(double value, double step, char decimalSign) {
    constexpr double kLongest = 1e6;
    constexpr double kFinest = 1e-4;
    constexpr int kDigits = 6;
    std::array<char, 64> buffer;
    char* const end = buffer.data() + buffer.size();
    if (std::abs(value) < step / 2) value = 0.0;
    std::to_chars_result written{};
    if (value != 0.0 && (std::abs(value) >= kLongest || step < kFinest)) {
        written = std::to_chars(buffer.data(), end, value, std::chars_format::general, kDigits);
    } else {
        const int decimals = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)));
        written = std::to_chars(buffer.data(), end, value, std::chars_format::fixed,
                                value == 0.0 ? 0 : decimals);
    }
    std::string text(buffer.data(), written.ptr);
    std::ranges::replace(text, '.', decimalSign);
    return text;
}

/// A fluid that can be moved through the temperatures of its table.
class PropertyCurve::Sampler : public CFluid {
  public:
    Sampler(const CFluid& fluid, const Units& units, Property property)
        : CFluid(fluid), property_(property) {
        units_ = units;
        SetUnits(&units_);
    }

    Point Mark() const { return {m_temperature, ValueHere()}; }

    std::vector<Curve> Curves() {
        if (property_ == Property::VaporPressure) return SaturationCurves();
        const auto [lowest, highest] = Range();
        const FLUIDSTATE state = m_state;
        return Sampled(lowest, highest, [this, state](double kelvin) {
            const double value = ValueAt(kelvin);
            return m_state == state ? value : 0.0;
        });
    }

  private:
    /// In kelvin, of both states: neither is bound to have its own up to where it ends.
    std::pair<double, double> Range() {
        double lowest = std::numeric_limits<double>::infinity();
        double highest = 0.0;
        if (FormulasExist(FLUID_LIQUID)) {
            lowest = m_liquidMinTemp;
            highest = m_liquidMaxTemp;
        }
        if (FormulasExist(FLUID_VAPOR)) {
            lowest = std::min(lowest, m_vaporMinTemp);
            highest = std::max(highest, m_vaporMaxTemp);
        }
        return {lowest, highest};
    }

    // One of the liquid; besides, for a blend, one of the vapor. They are those of any pressure,
    // and end at the critical point.
    std::vector<Curve> SaturationCurves() {
        const double lowest = Range().first;
        const double critical = KTemp(m_criticalTemp);
        std::vector<Curve> all;
        for (const int slot : {SLOT_LIQUID_SAT_PRES, SLOT_VAPOR_SAT_PRES}) {
            if (m_formulas[slot].m_type == 0) continue;
            auto curves = Sampled(lowest, critical, [&](double kelvin) {
                return UserPressure(m_formulas[slot].CalcResult(
                    kelvin, 0.0, m_molecularWt, critical, kPaPres(m_criticalPres, 1)));
            });
            std::ranges::move(curves, std::back_inserter(all));
        }
        return all;
    }

    /// Where the values end between two steps the curve ends too: at the place itself, found by
    /// bisection, not at the step.
    template <typename Value>
    std::vector<Curve> Sampled(double lowest, double highest, const Value& value) const {
        std::vector<Curve> curves;
        const auto sample = [&](double kelvin) {
            const double y = value(kelvin);
            return Sample{kelvin, y, IsGood(y)};
        };
        double begin = lowest;
        Sample before = sample(lowest);
        for (int i = 1; i <= kSteps && highest > lowest; ++i) {
            const Sample here = sample(Step(lowest, highest, i));
            if (here.good && !before.good) begin = End(here, before, sample).kelvin;
            if (before.good && (!here.good || i == kSteps)) {
                curves.push_back(Through(begin, End(before, here, sample).kelvin, value));
            }
            before = here;
        }
        return curves;
    }

    static double Step(double lowest, double highest, int i) {
        return i == kSteps ? highest : lowest + (highest - lowest) * i / kSteps;
    }

    template <typename Value>
    Curve Through(double lowest, double highest, const Value& value) const {
        Curve curve;
        for (int i = 0; i <= kSteps; ++i) {
            const double kelvin = Step(lowest, highest, i);
            const double y = value(kelvin);
            if (IsGood(y)) curve.push_back({UserTemperature(kelvin), y});
        }
        return curve;
    }

    struct Sample {
        double kelvin;
        double value;
        bool good;
    };

    /// The last good sample on the way from a good one to another.
    template <typename Take>
    static Sample End(Sample from, Sample to, const Take& sample) {
        if (to.good) return to;
        for (int i = 0; i < kBisections; ++i) {
            const Sample middle = sample((from.kelvin + to.kelvin) / 2);
            (middle.good ? from : to) = middle;
        }
        return from;
    }

    double UserTemperature(double kelvin) const {
        return units_.Convert(HF_TEMPERATURE, kelvin, HF_KELVIN, nullptr);
    }

    double UserPressure(double kPa) const {
        return units_.Convert(HF_PRESSURE, kPa, HF_KPA, nullptr);
    }

    double ValueAt(double kelvin) {
        m_temperature = UserTemperature(kelvin);
        m_state = FindFluidState(m_temperature, m_pressure);
        return ValueHere();
    }

    // Not rounded as the figures of a dialog are, which would show as stairs.
    double ValueHere() const {
        constexpr int kKgPerM3 = 1;
        const bool table = IsTableFluid();
        const double kelvin = KTemp(m_temperature);
        switch (property_) {
            case Property::Density:
                return units_.Convert(HF_DENSITY, GetDensity(), kKgPerM3, nullptr);
            case Property::Viscosity:
                return table ? GetViscosity(kelvin) : GetViscosity();
            case Property::VaporPressure:
                // Above the critical temperature there is none, whatever the formula gives.
                return m_temperature > m_criticalTemp && table ? 0.0 : UserPressure(GetVaporPres());
            case Property::HeatRatio:
                return m_state == FLUID_VAPOR
                           ? m_formulas[SLOT_VAPOR_SPHEAT].CalcResult(kelvin, 0.0, 0.0, 0.0, 0.0)
                           : GetSpHeat();
        }
        return 0.0;
    }

    Property property_;
    Units units_;
};

bool PropertyCurve::Set(const CFluid& fluid, const Units& units, Property property,
                        std::string title) {
    Clear({});
    const auto measure = property == Property::Density         ? HF_DENSITY
                         : property == Property::VaporPressure ? HF_PRESSURE
                                                               : HF_VISCOSITY;
    std::string unit =
        measure == HF_VISCOSITY ? Units::GetString(HF_VISCOSITY, 0) : units.GetString(measure);
    title_ = std::move(title);
    if (property != Property::HeatRatio) title_ += ", " + unit;
    temperatureUnit_ = units.GetString(HF_TEMPERATURE);

    Sampler sampler(fluid, units, property);
    const FLUIDSTATE state = sampler.GetFluidState();
    if (state == FLUID_NONE) return false;
    if (const Point mark = sampler.Mark(); IsGood(mark.y)) marks_.push_back(mark);
    if (state == FLUID_LIQUID || state == FLUID_VAPOR) curves_ = sampler.Curves();
    return !curves_.empty() || !marks_.empty();
}

void PropertyCurve::Clear(std::string message) {
    curves_.clear();
    marks_.clear();
    title_.clear();
    temperatureUnit_.clear();
    message_ = std::move(message);
}

/// One picture in the making.
class PropertyCurve::Painting {
  public:
    Painting(const PropertyCurve& curve, SIZE size, int textHeight, int charWidth)
        : curve_(curve), size_(size), textHeight_(textHeight), charWidth_(charWidth) {}

    PlotPicture Make() {
        FindLimits();
        const bool empty = lowest_.x >= highest_.x;
        if (!empty) {
            const int rows = 2 * static_cast<int>(size_.cy) / std::max(5 * textHeight_, 1);
            yTicks_ = MakeTicks(lowest_.y, highest_.y, rows);
            WidenToTicks();
        }
        FindArea();
        if (area_.right <= area_.left || area_.bottom <= area_.top) return {};
        DrawFrame();
        if (empty) {
            Write((area_.left + area_.right) / 2, (area_.top + area_.bottom - textHeight_) / 2, 0,
                  curve_.message_);
            return std::move(picture_);
        }
        DrawRows();
        DrawColumns();
        DrawCurves();
        Write(0, 0, -1, curve_.title_);
        return std::move(picture_);
    }

  private:
    void Include(const Point& point) {
        lowest_ = {std::min(lowest_.x, point.x), std::min(lowest_.y, point.y)};
        highest_ = {std::max(highest_.x, point.x), std::max(highest_.y, point.y)};
    }

    void FindLimits() {
        for (const Curve& curve : curve_.curves_)
            std::ranges::for_each(curve, [this](const Point& p) { Include(p); });
        for (const Point& mark : curve_.marks_) Include(mark);
        if (lowest_.x > highest_.x) return;
        if (lowest_.x == highest_.x) {
            lowest_.x -= kHalfWidth;
            highest_.x += kHalfWidth;
        }
        if (lowest_.y < kFromZero * highest_.y || lowest_.y == highest_.y) lowest_.y = 0.0;
    }

    // The values end on ticks; the temperatures are those of the table.
    void WidenToTicks() {
        const double step = yTicks_.step;
        lowest_.y = std::floor(lowest_.y / step + 1e-9) * step;
        highest_.y = std::ceil(highest_.y / step - 1e-9) * step;
        yTicks_.values.clear();
        const double count = std::round((highest_.y - lowest_.y) / step);
        for (double i = 0.0; i <= count; i += 1.0) yTicks_.values.push_back(lowest_.y + i * step);
    }

    void FindArea() {
        int widest = 0;
        for (const double value : yTicks_.values)
            widest = std::max(widest, WidthOf(RowText(value)));
        const int gap = charWidth_;
        area_.left = widest + gap;
        area_.top = textHeight_ + textHeight_ / 2;
        area_.right = size_.cx - 1 - gap;
        area_.bottom = size_.cy - 1 - textHeight_ - gap / 2;
    }

    int WidthOf(const std::string& text) const {
        return static_cast<int>(text.size()) * charWidth_;
    }
    std::string RowText(double value) const {
        return TickText(value, yTicks_.step, curve_.decimalSign_);
    }

    void DrawFrame() {
        picture_.frame.points = {{area_.left, area_.top},
                                 {area_.right, area_.top},
                                 {area_.right, area_.bottom},
                                 {area_.left, area_.bottom},
                                 {area_.left, area_.top}};
    }

    LONG X(double x) const {
        const double part = (x - lowest_.x) / (highest_.x - lowest_.x);
        return area_.left + Pixel(part * (area_.right - area_.left));
    }
    LONG Y(double y) const {
        const double part = (y - lowest_.y) / (highest_.y - lowest_.y);
        return area_.bottom - Pixel(part * (area_.bottom - area_.top));
    }

    void DrawRows() {
        for (const double value : yTicks_.values) {
            const LONG y = Y(value);
            if (y > area_.top && y < area_.bottom) {
                picture_.grid.push_back({{{area_.left, y}, {area_.right, y}}});
            }
            Write(area_.left - charWidth_ / 2, y - textHeight_ / 2, 1, RowText(value));
        }
    }

    void DrawColumns() {
        const LONG y = area_.bottom + charWidth_ / 2;
        const LONG unitBegins = size_.cx - WidthOf(curve_.temperatureUnit_) - charWidth_;
        constexpr int kCharsApart = 6;
        const LONG width = area_.right - area_.left;
        const Ticks ticks = MakeTicks(
            lowest_.x, highest_.x, static_cast<int>(width) / std::max(kCharsApart * charWidth_, 1));
        for (const double value : ticks.values) {
            const LONG x = X(value);
            if (x > area_.left && x < area_.right) {
                picture_.grid.push_back({{{x, area_.top}, {x, area_.bottom}}});
            }
            const std::string text = TickText(value, ticks.step, curve_.decimalSign_);
            if (x + WidthOf(text) / 2 < unitBegins) Write(x, y, 0, text);
        }
        Write(size_.cx - 1, y, 1, curve_.temperatureUnit_);
    }

    // What lies on the same pixel as the point before is left out.
    void DrawCurves() {
        const auto same = [](const POINT& a, const POINT& b) { return a.x == b.x && a.y == b.y; };
        for (const Curve& curve : curve_.curves_) {
            PlotLine line;
            for (const Point& point : curve) line.points.push_back({X(point.x), Y(point.y)});
            const auto rest = std::unique(line.points.begin(), line.points.end(), same);
            line.points.erase(rest, line.points.end());
            if (line.points.size() > 1) picture_.curves.push_back(std::move(line));
        }
        for (const Point& mark : curve_.marks_) picture_.marks.push_back({X(mark.x), Y(mark.y)});
    }

    void Write(LONG x, LONG y, int align, const std::string& text) {
        if (text.empty()) return;
        picture_.texts.push_back({static_cast<int>(x), static_cast<int>(y), align, text});
    }

    static constexpr double kInfinity = std::numeric_limits<double>::infinity();

    const PropertyCurve& curve_;
    SIZE size_;
    int textHeight_;
    int charWidth_;
    Point lowest_{kInfinity, kInfinity};
    Point highest_{-kInfinity, -kInfinity};
    Ticks yTicks_{1.0, {}};
    RECT area_{};
    PlotPicture picture_;
};

PlotPicture PropertyCurve::Draw(SIZE size, int textHeight, int charWidth) const {
    return Painting(*this, size, textHeight, charWidth).Make();
}

}  // namespace demo
