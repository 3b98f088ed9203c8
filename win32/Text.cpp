#include "win32/Text.h"

namespace {

unsigned char Capital(unsigned char c) {
    switch (c) {
        case 0x9A:
        case 0x9C:
        case 0x9E:
            return static_cast<unsigned char>(c - 0x10);
        case 0xF7:
            return c;  // the division sign has no case
        case 0xFF:
            return 0x9F;
        default:
            break;
    }
    const bool small = (c >= 'a' && c <= 'z') || c >= 0xE0;
    return small ? static_cast<unsigned char>(c - 0x20) : c;
}

}  // namespace

LPSTR CharUpperA(LPSTR text) {
    constexpr UINT_PTR kFirstAddress = 0x10000;
    const auto value = reinterpret_cast<UINT_PTR>(text);
    if (value < kFirstAddress) {
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        return reinterpret_cast<LPSTR>(UINT_PTR{Capital(static_cast<unsigned char>(value))});
    }
    for (char* c = text; *c != '\0'; ++c) {
        *c = static_cast<char>(Capital(static_cast<unsigned char>(*c)));
    }
    return text;
}
