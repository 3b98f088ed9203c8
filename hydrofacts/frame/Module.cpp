// What happens when a process loads and lets go the library, and the objects that live as long as
// it is loaded. They stand in this one file because the order in which they are built matters: the
// language, the names of fluid tables, the shared unit object, and last the entry that attaches.

#include "hydrofacts/frame/Module.h"

#include <memory>
#include <string>

#include "hydrofacts/dialogs/FluidNames.h"
#include "hydrofacts/resources/Resources.h"
#include "hydrofacts/units/Units.h"
#include "quillbase/CLanguage.h"
#include "quillbase/CTableReader.h"
#include "quillbase/DialogItems.h"
#include "quillbase/LibraryPlace.h"
#include "win32/Win32.h"

namespace {

CLanguage languageObject;
const auto fluidTableCache = std::make_shared<hydrofacts::FluidNames>();

}  // namespace

Units Units::basic_units(HF_US);

namespace {

HINSTANCE moduleHandle = nullptr;
std::unique_ptr<CTableReader> tableReader;

// A table file beside the library takes the place of the built-in messages; without one, or with
// one that is no table, the library loads as usual.
void Attach(HINSTANCE module) {
    moduleHandle = module;
    quillbase::SetLibraryModule(module);
    const std::string path =
        quillbase::LibraryFolder() + win32::kPathSeparator + "HYDROFACTS_LANGUAGE_c.DAT";
    tableReader = std::make_unique<CTableReader>(path.c_str(), '\t', nullptr, nullptr);
    if (!tableReader->Valid()) tableReader.reset();
    languageObject.Attach(module, tableReader.get());
    quillbase::SetNumberLanguage(&languageObject);
}

void Detach() {
    quillbase::SetNumberLanguage(nullptr);
    tableReader.reset();
}

WIN32_MODULE_ENTRY(Attach, Detach, hydrofacts::Resources());

}  // namespace

namespace hydrofacts {

HINSTANCE ModuleHandle() { return moduleHandle; }

CLanguage& Language() { return languageObject; }

std::shared_ptr<FluidNames> FluidTableCache() { return fluidTableCache; }

}  // namespace hydrofacts
