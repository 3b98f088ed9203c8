#include <fmt/core.h>

#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <numbers>
#include <optional>

#include "tools/Failure.h"
#include "tools/Lengths.h"
#include "tools/Numbers.h"
#include "tools/Output.h"
#include "tools/PipeInUse.h"
#include "tools/Program.h"

namespace hydrofacts::command {
namespace {

constexpr const char* kFooter =
    R"(A size is nominal, in inches or, with --units metric, in mm (DN); 1/2, "2 1/2" and 2-1/2 do too. The
second dimension of a table is taken for the outside diameter if it is larger than the inside one in
every size. Absolute roughness and Hazen-Williams C are of new pipe.

Examples:
  hydrofacts pipe "Steel B36.10M"
  hydrofacts pipe "Steel B36.10M" 40
  hydrofacts pipe "Steel B36.10M" 40 2
  hydrofacts pipe "Steel B36.10M" std 50 --next --units metric
  hydrofacts pipe "Copper Tube B88" "Type L" --diameter 2 --json)";

using Json = nlohmann::ordered_json;

struct PipeOptions {
    std::string material;
    std::string schedule;
    std::string size;
    std::string diameter;
    std::string units;
    bool next = false;
    bool previous = false;
};

// Without the last binary digits, in which a difference is not what the table's decimals give.
double Wall(const t_pipe_size& size) {
    constexpr double kSteps = 1e9;
    return std::round((size.second_dim - size.inside_dia) / 2.0 * kSteps) / kSteps;
}

Json ToJson(const t_pipe_size& size, bool outside) {
    Json json = {
        {"nominal", size.nominal},
        {"inside_diameter", size.inside_dia},
        {outside ? "outside_diameter" : "second_dimension", size.second_dim},
    };
    if (outside) json["wall"] = Wall(size);
    return json;
}

Json ToJson(const PipeInUse& use) {
    Json json = {
        {"material", use.MaterialName()},
        {"title", use.Head().title},
        {"version", use.Head().version},
        {"roughness", NumberOrNull(use.Pipe().GetAbsRoughness())},
        {"hazen_williams_c", NumberOrNull(use.Pipe().GetHWC())},
    };
    if (use.Pipe().IsValid()) json["schedule"] = use.ScheduleName();
    return json;
}

Json UnitsToJson(HF_UNITS system) { return {{"length", LengthUnit(system)}}; }

std::string RoughnessText(const TablePipe& pipe) {
    const double roughness = pipe.GetAbsRoughness();
    return roughness == 0.0 ? "none" : LengthText(roughness, pipe.System());
}

void PrintHead(const PipeInUse& use) {
    Print(fmt::format("{}: roughness {}, Hazen-Williams C {}\n{}\n\n", use.Name(),
                      RoughnessText(use.Pipe()), HazenWilliamsText(use.Pipe().GetHWC()),
                      TitleText(use.Head())));
}

// The names of the schedules that can be loaded, with their sizes. The others are named on standard
// error.
struct Schedule {
    std::string name;
    std::vector<t_pipe_size> sizes;
    bool outside;
};

std::vector<Schedule> UsableSchedules(PipeInUse& use) {
    std::vector<Schedule> schedules;
    for (const std::string& narrow : use.Pipe().Schedules()) {
        try {
            use.LoadNamedSchedule(narrow);
            schedules.push_back(
                {use.ScheduleName(), use.Pipe().Sizes(), use.Pipe().HasOutsideDiameters()});
        } catch (const Failure& failure) {
            PrintError(failure.what());
        }
    }
    return schedules;
}

Json SizesToJson(const std::vector<t_pipe_size>& sizes, bool outside) {
    auto json = Json::array();
    for (const t_pipe_size& size : sizes) json.push_back(ToJson(size, outside));
    return json;
}

void ShowMaterial(bool asJson, PipeInUse& use) {
    // The head first: afterwards a schedule is loaded.
    Json json = ToJson(use);
    if (!asJson) PrintHead(use);
    json["schedules"] = Json::array();
    const std::string unit = LengthUnit(use.System());
    Rows rows = {
        {"SCHEDULE", "SIZES", fmt::format("FROM ({})", unit), fmt::format("TO ({})", unit)}};
    for (const Schedule& schedule : UsableSchedules(use)) {
        json["schedules"].push_back({{"schedule", schedule.name},
                                     {"sizes", SizesToJson(schedule.sizes, schedule.outside)}});
        rows.push_back({schedule.name, fmt::format("{:5}", schedule.sizes.size()),
                        ShortNumber(schedule.sizes.front().nominal),
                        ShortNumber(schedule.sizes.back().nominal)});
    }
    json["units"] = UnitsToJson(use.System());
    if (asJson) {
        PrintJson(json);
    } else {
        PrintRows(rows);
    }
}

void ShowSchedule(bool asJson, const PipeInUse& use) {
    const auto sizes = use.Pipe().Sizes();
    const bool outside = use.Pipe().HasOutsideDiameters();
    if (asJson) {
        Json json = ToJson(use);
        json["sizes"] = SizesToJson(sizes, outside);
        json["units"] = UnitsToJson(use.System());
        PrintJson(json);
        return;
    }
    const std::string unit = " (" + LengthUnit(use.System()) + ")";
    Rows rows = {{"SIZE" + unit, "INSIDE" + unit, (outside ? "OUTSIDE" : "SECOND") + unit}};
    if (outside) rows.front().push_back("WALL" + unit);
    for (const t_pipe_size& size : sizes) {
        rows.push_back({ShortNumber(size.nominal), ShortNumber(size.inside_dia),
                        ShortNumber(size.second_dim)});
        if (outside) rows.back().push_back(ShortNumber(Wall(size)));
    }
    PrintHead(use);
    PrintRows(rows);
}

double FlowArea(const t_pipe_size& size) {
    return std::numbers::pi / 4.0 * size.inside_dia * size.inside_dia;
}

double RelativeRoughness(const PipeInUse& use, const t_pipe_size& size) {
    return use.Pipe().GetAbsRoughness() / size.inside_dia;
}

void PrintSizeJson(const PipeInUse& use, const t_pipe_size& size, std::optional<double> nearestTo) {
    Json json = ToJson(use);
    json.update(ToJson(size, use.Pipe().HasOutsideDiameters()));
    json["flow_area"] = FlowArea(size);
    json["relative_roughness"] = NumberOrNull(RelativeRoughness(use, size));
    json["next_size"] = NumberOrNull(use.Pipe().NextSize(size.nominal));
    json["previous_size"] = NumberOrNull(use.Pipe().PrevSize(size.nominal));
    if (nearestTo) json["nearest_to"] = *nearestTo;
    json["units"] = UnitsToJson(use.System());
    json["units"]["flow_area"] = AreaUnit(use.System());
    PrintJson(json);
}

std::string InsideText(const t_pipe_size& size, std::optional<double> nearestTo, HF_UNITS system) {
    std::string text = LengthText(size.inside_dia, system);
    const double difference = size.inside_dia - nearestTo.value_or(size.inside_dia);
    if (difference == 0.0) return text;
    return fmt::format("{}, {} {} than {}", text, LengthText(std::abs(difference), system),
                       difference > 0.0 ? "more" : "less", ShortNumber(*nearestTo));
}

std::string NeighbourText(double nominal, HF_UNITS system) {
    return nominal == 0.0 ? "none" : LengthText(nominal, system);
}

void PrintSize(const PipeInUse& use, const t_pipe_size& size, std::optional<double> nearestTo) {
    const TablePipe& pipe = use.Pipe();
    const HF_UNITS system = use.System();
    const bool outside = pipe.HasOutsideDiameters();
    std::string roughness = RoughnessText(pipe);
    if (pipe.GetAbsRoughness() != 0.0) {
        roughness += fmt::format(", {} of the inside diameter",
                                 SignificantNumber(RelativeRoughness(use, size), 3));
    }
    Rows rows = {{"Inside diameter", InsideText(size, nearestTo, system)}};
    const auto add = [&](const char* what, const std::string& text) {
        rows.push_back({what, text});
    };
    add(outside ? "Outside diameter" : "Second dimension", LengthText(size.second_dim, system));
    if (outside) add("Wall", LengthText(Wall(size), system));
    add("Flow area", SignificantNumber(FlowArea(size)) + " " + AreaUnit(system));
    add("Roughness", roughness);
    add("Hazen-Williams C", HazenWilliamsText(pipe.GetHWC()));
    add("Next size", NeighbourText(pipe.NextSize(size.nominal), system));
    add("Previous size", NeighbourText(pipe.PrevSize(size.nominal), system));
    add("Table", TitleText(use.Head()));
    Print(fmt::format("{}, size {}: inside diameter {}\n\n", use.Name(),
                      LengthText(size.nominal, system), LengthText(size.inside_dia, system)));
    PrintRows(rows);
}

std::optional<double> DiameterOf(const PipeOptions& own) {
    if (own.diameter.empty()) return std::nullopt;
    const double diameter = RequireNumber(own.diameter, "--diameter");
    if (diameter > 0.0) return diameter;
    throw Failure(fmt::format("--diameter: {} is not above zero", ShortNumber(diameter)));
}

void RequirePossible(const PipeOptions& own) {
    if ((own.next || own.previous) && own.size.empty()) {
        throw Failure("--next and --previous go on from a SIZE: say which");
    }
    if (own.next && own.previous) throw Failure("--next or --previous: not both");
    if (!own.diameter.empty() && own.schedule.empty()) {
        throw Failure("--diameter looks for a size of a SCHEDULE: say which");
    }
    if (!own.diameter.empty() && !own.size.empty()) {
        throw Failure("--diameter finds the size: leave SIZE out");
    }
}

void ShowPipe(const Options& options, const PipeOptions& own) {
    RequirePossible(own);
    const auto diameter = DiameterOf(own);
    PipeInUse use(options.tables, own.material, SystemNamed(own.units));
    if (own.schedule.empty()) {
        ShowMaterial(options.json, use);
        return;
    }
    use.LoadSchedule(own.schedule);
    if (own.size.empty() && !diameter) {
        ShowSchedule(options.json, use);
        return;
    }
    const t_pipe_size size = diameter                   ? use.NearestTo(*diameter)
                             : own.next || own.previous ? use.NextTo(own.size, own.next)
                                                        : use.SizeOf(own.size);
    if (options.json) {
        PrintSizeJson(use, size, diameter);
    } else {
        PrintSize(use, size, diameter);
    }
}

}  // namespace

void AddPipeCommand(Command& program, Options& options) {
    const auto own = std::make_shared<PipeOptions>();
    Command command =
        program.AddCommand("pipe", "Show a pipe material, one of its schedules, or a size");
    command.AddWord("MATERIAL", own->material, "The material, in any case").Require();
    command.AddWord("SCHEDULE", own->schedule, "Its schedule, in any case");
    command.AddWord("SIZE", own->size, "A nominal size of the schedule");
    command.AddOption("--diameter", own->diameter, "D",
                      "The size whose inside diameter is nearest to D,\nthe larger of two");
    command.AddFlag("--next", own->next, "The size above SIZE, which need not be one");
    command.AddFlag("--previous", own->previous, "The size below SIZE, which need not be one");
    AddLengthUnitsOption(command, own->units);
    AddTablesOption(command, options);
    AddJsonOption(command, options);
    command.SetFooter(kFooter);
    command.SetAction([&options, own] { ShowPipe(options, *own); });
}

}  // namespace hydrofacts::command
