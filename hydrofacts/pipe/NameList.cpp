#include "hydrofacts/pipe/NameList.h"

#include <cstring>

namespace hydrofacts {

NameList::NameList(char* buffer, int size)
    : buffer_(buffer), room_(size > 0 ? static_cast<std::size_t>(size) : 0) {}

bool NameList::Add(const char* name) {
    const std::size_t length = std::strlen(name);
    if (used_ + length + 2 > room_) {
        full_ = true;
        return false;
    }
    std::memcpy(buffer_ + used_, name, length);
    used_ += length;
    buffer_[used_++] = '\t';
    buffer_[used_] = '\0';
    ++count_;
    return true;
}

void NameList::CutLastTab() {
    if (used_ > 0) buffer_[used_ - 1] = '\0';
}

}  // namespace hydrofacts
