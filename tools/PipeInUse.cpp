#include "tools/PipeInUse.h"

#include <fmt/core.h>

#include <algorithm>
#include <iterator>

#include "tools/Encoding.h"
#include "tools/Failure.h"
#include "tools/Lengths.h"
#include "tools/Names.h"
#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

double RequireNominal(const std::string& text) {
    const auto nominal = NominalSizeIn(text);
    if (nominal && *nominal > 0.0) return *nominal;
    throw Failure(fmt::format("SIZE: \"{}\" is not a size, such as 2, 2.5 or 1/2", text));
}

}  // namespace

PipeInUse::PipeInUse(const std::optional<std::string>& tables, const std::string& material,
                     HF_UNITS system)
    : m_directory(tables, kPipeTables),
      m_table(m_directory.Require(material)),
      m_head(ReadTableHead(m_table)),
      m_pipe(system) {
    if (!m_pipe.Load(m_directory, m_table)) throw m_directory.NotUsable(m_table);
}

std::string PipeInUse::Name() const {
    return m_pipe.IsValid() ? m_table.name + ", schedule " + ScheduleName() : m_table.name;
}

std::string PipeInUse::ScheduleName() const {
    return Utf8FromWindows1252(m_pipe.GetScheduleName());
}

void PipeInUse::LoadSchedule(const std::string& name) {
    const auto schedules = m_pipe.Schedules();
    std::vector<std::string> names;
    std::transform(schedules.begin(), schedules.end(), std::back_inserter(names),
                   Utf8FromWindows1252);
    auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        found = std::find_if(names.begin(), names.end(),
                             [&](const auto& other) { return EqualIgnoringCase(other, name); });
    }
    if (found != names.end()) {
        LoadNamedSchedule(schedules[static_cast<std::size_t>(found - names.begin())]);
        return;
    }
    if (names.empty()) throw m_directory.NotUsable(m_table, "no schedules");
    const auto nearest = NearestNames(name, names);
    throw Failure(fmt::format("{} has no schedule \"{}\"; {}", m_table.name, name,
                              nearest.empty() ? "its schedules are " + JoinNames(names, "and")
                                              : "did you mean " + JoinNames(nearest, "or") + "?"));
}

// A schedule of which a part is read would give wrong neighbours and nearest sizes.
void PipeInUse::LoadNamedSchedule(const std::string& narrow) {
    if (m_pipe.LoadPipeList(narrow.c_str(), nullptr)) return;
    m_pipe.ClearPipeList();
    throw m_directory.NotUsable(m_table, fmt::format("schedule {} has a row that can't be used",
                                                     Utf8FromWindows1252(narrow)));
}

t_pipe_size PipeInUse::SizeOf(const std::string& nominal) const {
    const double size = RequireNominal(nominal);
    if (m_pipe.PipeDia(size) != 0.0) return RowOf(size);
    throw Failure(fmt::format("{}, has no size {}; {}{}", Name(), LengthText(size, System()),
                              NeighboursText(size), OtherSystemHint(size)));
}

t_pipe_size PipeInUse::NextTo(const std::string& nominal, bool above) const {
    const double size = RequireNominal(nominal);
    const double neighbour = above ? m_pipe.NextSize(size) : m_pipe.PrevSize(size);
    if (neighbour != 0.0) return RowOf(neighbour);
    throw Failure(fmt::format("{}, has no size {} {}", Name(), above ? "above" : "below",
                              LengthText(size, System())));
}

t_pipe_size PipeInUse::NearestTo(double diameter) const { return RowOf(m_pipe.PipeSize(diameter)); }

t_pipe_size PipeInUse::RowOf(double nominal) const {
    const auto sizes = m_pipe.Sizes();
    const auto found = std::find_if(sizes.begin(), sizes.end(), [nominal](const t_pipe_size& size) {
        return size.nominal == nominal;
    });
    // A table may name a size "nan", which equals nothing.
    if (found == sizes.end()) {
        throw m_directory.NotUsable(
            m_table, fmt::format("schedule {} has a size that is no number", ScheduleName()));
    }
    return *found;
}

std::string PipeInUse::NeighboursText(double nominal) const {
    const double below = m_pipe.PrevSize(nominal);
    const double above = m_pipe.NextSize(nominal);
    if (below == 0.0) return "the smallest is " + LengthText(above, System());
    if (above == 0.0) return "the largest is " + LengthText(below, System());
    return fmt::format("its neighbours are {} and {}", ShortNumber(below),
                       LengthText(above, System()));
}

// The other unit system, if the size is one of it: 50 is likely to be mm.
std::string PipeInUse::OtherSystemHint(double nominal) const {
    const HF_UNITS other = System() == HF_METRIC ? HF_US : HF_METRIC;
    TablePipe pipe(other);
    if (!pipe.Load(m_directory, m_table) || !pipe.LoadPipeList(m_pipe.GetScheduleName(), nullptr) ||
        pipe.PipeDia(nominal) == 0.0) {
        return "";
    }
    return fmt::format("; with --units {} it has {}", other == HF_METRIC ? "metric" : "us",
                       LengthText(nominal, other));
}

}  // namespace hydrofacts::command
