#ifndef HYDROFACTS_TABLES_REPORT_H
#define HYDROFACTS_TABLES_REPORT_H

#include <span>
#include <string>

#include "tables/FluidDesign.h"
#include "tables/LeftOut.h"

namespace hydrofacts::tables {

/// The accuracy of all tables and what was left out, as a Markdown page.
std::string ReportText(std::span<const FluidTable> tables, std::span<const LeftOut> leftOut);

}  // namespace hydrofacts::tables

#endif
