#include "tools/check/FieldNumber.h"

#include <fmt/core.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>

namespace hydrofacts::command {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";
constexpr std::string_view kHexadecimalStart = ".0123456789abcdefABCDEF";

std::string_view WithoutBlanksAhead(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text;
}

bool IsBlank(std::string_view text) { return WithoutBlanksAhead(text).empty(); }

struct ScannedReal {
    double value;
    std::string_view rest;
    bool hexadecimal;
};

// Reads as "%lg" does with a point as decimal sign. A number that no double holds is infinite.
std::optional<ScannedReal> ScanReal(std::string_view text) {
    text = WithoutBlanksAhead(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) {
        text.remove_prefix(2);
        if (text.empty() || kHexadecimalStart.find(text[0]) == std::string_view::npos) return {};
    }
    if (text.starts_with('-')) return {};
    double value = 0.0;
    const auto [stop, error] =
        std::from_chars(text.data(), text.data() + text.size(), value,
                        hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (error == std::errc::invalid_argument) return {};
    if (error != std::errc()) value = std::numeric_limits<double>::infinity();
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
    return ScannedReal{negative ? -value : value, text, hexadecimal};
}

/// The field of a line, and where to report what is wrong with it: the first thing that is.
class FieldCheck {
  public:
    FieldCheck(const TableLine& line, const NumberField& wanted, Findings& findings)
        : m_line(line.number),
          m_wanted(wanted),
          m_text(line.Field(wanted.field)),
          m_findings(findings) {}

    std::string_view Text() const { return m_text; }

    void Error(const std::string& reason) {
        if (m_failed) return;
        m_failed = true;
        m_findings.Error(m_line, m_wanted.field, fmt::format("{}: {}", m_wanted.what, reason));
    }
    void Warning(const std::string& reason) {
        m_findings.Warning(m_line, m_wanted.field, fmt::format("{}: {}", m_wanted.what, reason));
    }

    void NoNumber() {
        if (m_text.empty()) {
            Error("the field is missing");
        } else if (IsBlank(m_text)) {
            Error("blanks are no number");
        } else {
            Error(Quoted(m_text) + " is not a number");
        }
    }

    template <class Value>
    void UnreadRest(std::string_view rest, Value value) {
        if (IsBlank(rest)) return;
        const bool comma = rest.starts_with(',');
        Error(fmt::format("{} is read as {}{}", Quoted(m_text), value,
                          comma ? ": the decimal sign is a point" : ""));
    }

    template <class Value>
    void Demand(Value value) {
        if (m_wanted.need != Need::Any && value == 0) {
            Error("it is 0");
        } else if (m_wanted.need == Need::Positive && value < 0) {
            Error(fmt::format("{} is not above 0", value));
        }
    }

  private:
    std::size_t m_line;
    const NumberField& m_wanted;
    std::string_view m_text;
    Findings& m_findings;
    bool m_failed = false;
};

// A leading 0 makes "010" an 8, which nobody who writes a table means.
void CheckOctal(std::string_view text, std::int64_t value, FieldCheck& check) {
    std::string_view digits = WithoutBlanksAhead(text);
    if (digits.starts_with('-') || digits.starts_with('+')) digits.remove_prefix(1);
    if (digits.size() < 2 || digits[0] != '0' || digits[1] < '0' || digits[1] > '9') return;
    std::int64_t decimal = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), decimal);
    if (decimal == std::abs(value)) return;
    check.Error(
        fmt::format("{} is read as {}: a leading 0 marks an octal number", Quoted(text), value));
}

}  // namespace

std::optional<double> CheckReal(const TableLine& line, const NumberField& wanted,
                                Findings& findings) {
    FieldCheck check(line, wanted, findings);
    const auto number = ScanReal(check.Text());
    if (!number) {
        check.NoNumber();
        return std::nullopt;
    }
    if (!std::isfinite(number->value)) {
        check.Error(Quoted(check.Text()) + " is not a finite number");
        return number->value;
    }
    check.UnreadRest(number->rest, number->value);
    if (number->hexadecimal) {
        check.Warning(fmt::format("{} is hexadecimal, {}", Quoted(check.Text()), number->value));
    }
    check.Demand(number->value);
    return number->value;
}

std::optional<std::int16_t> CheckShort(const TableLine& line, const NumberField& wanted,
                                       Findings& findings) {
    FieldCheck check(line, wanted, findings);
    const auto number = ScanInteger(check.Text());
    if (!number) {
        check.NoNumber();
        return std::nullopt;
    }
    const auto value = static_cast<std::int16_t>(number->value);
    if (value != number->value) {
        check.Error(
            fmt::format("{} has more than 16 bits and is read as {}", Quoted(check.Text()), value));
        return value;
    }
    CheckOctal(check.Text(), value, check);
    check.UnreadRest(number->rest, value);
    check.Demand(value);
    return value;
}

std::optional<ScannedInteger> ScanInteger(std::string_view text) {
    const std::string terminated(WithoutBlanksAhead(text));
    char* end = nullptr;
    const long long value = std::strtoll(terminated.c_str(), &end, 0);
    if (end == terminated.c_str()) return std::nullopt;
    const auto used = static_cast<std::size_t>(end - terminated.c_str());
    return ScannedInteger{static_cast<std::int32_t>(value),
                          text.substr(text.size() - (terminated.size() - used))};
}

}  // namespace hydrofacts::command
