#ifndef HYDROFACTS_HYDROFACTS_H
#define HYDROFACTS_HYDROFACTS_H

/// @file
/// All public headers of Hydrofacts.

#include "hydrofacts/dialogs/Atmospheric_Pressure_From_Elevation_Dialog.h"
#include "hydrofacts/dialogs/CFluidDlg.h"
#include "hydrofacts/dialogs/CPipeTableDlg.h"
#include "hydrofacts/dialogs/CValveTableDlg.h"
#include "hydrofacts/dialogs/FluidTableCache.h"
#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/formula/CFormula.h"
#include "hydrofacts/frame/Language.h"
#include "hydrofacts/pipe/CPipeTable.h"
#include "hydrofacts/pipe/CPipeTableList.h"
#include "hydrofacts/units/Atmospheric_Pressure_Equations.h"
#include "hydrofacts/units/UnitValue.h"
#include "hydrofacts/units/Units.h"
#include "hydrofacts/valve/CValveTable.h"
#include "kvogui/EditControl.h"
#include "kvogui/StaticControl.h"
#include "quillbase/Directory.h"
#include "win32/DialogBuilder.h"
#include "win32/User.h"

#endif
