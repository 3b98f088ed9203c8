#include "tools/TablePipe.h"

#include <algorithm>
#include <string_view>

#include "tools/Numbers.h"

namespace hydrofacts::command {
namespace {

constexpr int kListDoesNotFit = -1;

}  // namespace

bool TablePipe::Load(const TableDirectory& directory, const TableName& table) {
    m_narrow = table.narrow;
    abs_roughness = 0.0;  // a record without one would leave that of the material before
    return LoadMaterial(directory.Narrow().c_str(), m_narrow.c_str());
}

std::vector<std::string> TablePipe::Schedules() const {
    std::string list(1000, '\0');
    const auto fill = [&] {
        return ListPipeSchedules(list.data(), static_cast<int>(list.size()), m_narrow.c_str());
    };
    int count = fill();
    while (count == kListDoesNotFit) {
        list.assign(2 * list.size(), '\0');
        count = fill();
    }
    std::vector<std::string> schedules;
    std::string_view rest(list.c_str());
    while (!rest.empty()) {
        const std::string_view name = rest.substr(0, rest.find('\t'));
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
        if (std::find(schedules.begin(), schedules.end(), name) == schedules.end()) {
            schedules.emplace_back(name);
        }
    }
    return schedules;
}

std::vector<t_pipe_size> TablePipe::Sizes() const {
    std::vector<t_pipe_size> sizes;
    for (const t_pipe_size* size = pipe_list; size != nullptr; size = size->next) {
        sizes.push_back({nullptr, size->nominal, size->inside_dia, size->second_dim});
    }
    return sizes;
}

bool TablePipe::HasOutsideDiameters() const {
    const auto sizes = Sizes();
    return std::all_of(sizes.begin(), sizes.end(),
                       [](const t_pipe_size& size) { return size.second_dim > size.inside_dia; });
}

std::string HazenWilliamsText(double hazenWilliamsC) {
    return hazenWilliamsC == 0.0 ? "none" : ShortNumber(hazenWilliamsC);
}

}  // namespace hydrofacts::command
