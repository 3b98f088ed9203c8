#include "tools/plot/GnuplotScript.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <string_view>

namespace hydrofacts::command {
namespace {

constexpr int kWidth = 940;
constexpr int kPanelHeight = 460;
// Values that differ by more than this factor are drawn on a logarithmic axis.
constexpr double kWideSpan = 30.0;

// Okabe and Ito's colours, which people with any kind of colour vision tell apart.
constexpr std::array kColors = {"#0072B2", "#D55E00", "#009E73", "#CC79A7",
                                "#E69F00", "#56B4E9", "#000000"};

constexpr const char* kGrey = "#606060";

// The font is a family that every viewer of SVG has; texts are taken as they are ("R_404A").
constexpr const char* kStyle = R"(set encoding utf8
set terminal svg size {},{} fixed noenhanced font 'sans-serif,15' background 'white'
set border 3 lc rgb '#404040'
set tics nomirror out
set grid lc rgb '#D8D8D8' lt 1 lw 0.7
set format '%g'
set autoscale xfix
set lmargin at screen 0.13
set rmargin at screen 0.66
set key at screen 0.68, graph 1 left top vertical Left reverse samplen 2 spacing 1.25
set xlabel {}
)";

// A text for gnuplot, which knows no way to write a control character in single quotes.
std::string Text(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'') quoted += c;
        quoted += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
    return quoted + "'";
}

bool IsWide(const Panel& panel) {
    double least = std::numeric_limits<double>::infinity();
    double most = 0.0;
    for (const Series& series : panel.series) {
        for (const PlotPoint& point : series.points) {
            least = std::min(least, point.value);
            most = std::max(most, point.value);
        }
    }
    return least > 0.0 && most > kWideSpan * least;
}

std::string Style(SeriesKind kind, const char* color) {
    switch (kind) {
        case SeriesKind::Fitted:
            return fmt::format("with points pt 6 ps 0.7 lw 1.2 lc rgb '{}'", color);
        case SeriesKind::NotFitted:
            return fmt::format("with points pt 7 ps 0.6 lc rgb '{}'", color);
        default:
            return fmt::format("with lines lw 2 lc rgb '{}'", color);
    }
}

const char* ColorOf(const Series& series) { return kColors[series.color % kColors.size()]; }

// A line of the legend for each kind of check points, whose colour is grey where the points of
// several curves share it.
struct LegendEntry {
    SeriesKind kind;
    const char* color;
};

std::map<std::string, LegendEntry> CheckPointLegend(const Panel& panel) {
    std::map<std::string, LegendEntry> legend;
    for (const Series& series : panel.series) {
        if (series.kind == SeriesKind::Curve) continue;
        const char* const color = ColorOf(series);
        const auto [place, added] = legend.emplace(series.label, LegendEntry{series.kind, color});
        if (!added && place->second.color != color) place->second.color = kGrey;
    }
    return legend;
}

/// Writes the data of one panel after the other and the commands that draw them.
class ScriptWriter {
  public:
    std::string Write(const PropertyPlot& plot) {
        m_script = fmt::format(fmt::runtime(kStyle), kWidth,
                               kPanelHeight * static_cast<int>(plot.panels.size()),
                               Text(plot.temperatureLabel));
        for (const Panel& panel : plot.panels) WriteData(panel);
        m_script += fmt::format("set multiplot layout {},1\n", plot.panels.size());
        m_block = 0;
        for (const Panel& panel : plot.panels) WritePanel(panel);
        return m_script + "unset multiplot\n";
    }

  private:
    void WriteData(const Panel& panel) {
        for (const Series& series : panel.series) {
            m_script += fmt::format("$data{} << END\n", m_block++);
            for (const PlotPoint& point : series.points) {
                m_script += fmt::format("{:.9g} {:.9g}\n", point.temperature, point.value);
            }
            m_script += "END\n";
        }
    }

    void WritePanel(const Panel& panel) {
        m_script +=
            fmt::format("set title {} font ',17'\nset ylabel {}\n{}set logscale y\n",
                        Text(panel.title), Text(panel.valueLabel), IsWide(panel) ? "" : "un");
        const char* separator = "plot ";
        const auto add = [&](const std::string& what) {
            m_script += separator + what;
            separator = ", \\\n     ";
        };
        for (const Series& series : panel.series) {
            const bool curve = series.kind == SeriesKind::Curve;
            add(fmt::format("$data{} using 1:2 {} {}", m_block++,
                            Style(series.kind, ColorOf(series)),
                            curve ? "title " + Text(series.label) : "notitle"));
        }
        for (const auto& [label, entry] : CheckPointLegend(panel)) {
            add(fmt::format("NaN {} title {}", Style(entry.kind, entry.color), Text(label)));
        }
        m_script += '\n';
    }

    std::string m_script;
    std::size_t m_block = 0;
};

}  // namespace

std::string GnuplotScript(const PropertyPlot& plot) { return ScriptWriter().Write(plot); }

}  // namespace hydrofacts::command
