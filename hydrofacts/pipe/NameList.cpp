#include "hydrofacts/pipe/NameList.h"

namespace hydrofacts {

NameList::NameList(char* buffer, int size)
    : buffer_(buffer), room_(size > 0 ? static_cast<std::size_t>(size) : 0) {}

bool NameList::Add(std::string_view name) {
    if (used_ + name.size() + 2 > room_) {
        full_ = true;
        return false;
    }
    used_ += name.copy(buffer_ + used_, name.size());
    buffer_[used_++] = '\t';
    buffer_[used_] = '\0';
    ++count_;
    return true;
}

void NameList::CutLastTab() {
    if (used_ > 0) buffer_[used_ - 1] = '\0';
}

}  // namespace hydrofacts
