#ifndef HYDROFACTS_FUZZ_INPUT_H
#define HYDROFACTS_FUZZ_INPUT_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace hydrofacts::fuzz {

using Bytes = std::span<const std::uint8_t>;

/// Ends the process with a message unless something holds that every input has to leave true.
void Require(bool holds, const char* what);

/// Takes choices from the head of an input; past its end they are 0.
class Input {
  public:
    explicit Input(Bytes bytes) : bytes_(bytes) {}

    std::uint8_t Byte();
    /// A number below `count`.
    std::size_t Below(std::size_t count) { return Byte() % count; }
    /// A number such as readers and formulas meet at their edges.
    double Number();
    /// What is left.
    Bytes Rest() const { return bytes_; }
    std::string_view Text() const;
    /// The text up to a line feed, which is passed over.
    std::string Line();

  private:
    Bytes bytes_;
};

/// A copy of a text with its zero, in memory of just that size, so that a byte read or written
/// beyond it is found.
std::unique_ptr<char[]> ExactCopy(std::string_view text);

}  // namespace hydrofacts::fuzz

#endif
