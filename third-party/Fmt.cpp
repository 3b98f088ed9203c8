// The part of {fmt} that its headers leave to a library, for the formatting of char alone. Every
// program has its own copy, so none needs libfmt where it runs.
#include <fmt/format-inl.h>

FMT_BEGIN_NAMESPACE
namespace detail {

template dragonbox::decimal_fp<float> dragonbox::to_decimal(float) noexcept;
template dragonbox::decimal_fp<double> dragonbox::to_decimal(double) noexcept;
template locale_ref::locale_ref(const std::locale&);
template std::locale locale_ref::get<std::locale>() const;
template thousands_sep_result<char> thousands_sep_impl(locale_ref);
template char decimal_point_impl(locale_ref);
template void buffer<char>::append(const char*, const char*);

}  // namespace detail
FMT_END_NAMESPACE
