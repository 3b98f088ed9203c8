#include "hydrofacts/frame/Language.h"

#include "hydrofacts/frame/Module.h"
#include "quillbase/CLanguage.h"

void Hydrofacts_SetLanguage(unsigned long language) {
    hydrofacts::Language().SetLanguage(language);
}

int Hydrofacts_GetMessage(unsigned id, char* buffer, int size) {
    return hydrofacts::Language().String(hydrofacts::ModuleHandle(), id, buffer, size);
}
