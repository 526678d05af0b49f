// Texts with numbers and words put in by the compiler, for knobs that differ in these alone:
//
//     text<"Fix GPU at {} MHz", 850>     "Fix GPU at 850 MHz"
//
// Each "{}" stands for the next value, a number or a word. Braces that enclose anything are the text's own.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace catalogue {

/// A literal as a template argument.
template <std::size_t Size>
struct word {
    char chars[Size]{};

    consteval word(const char (&literal)[Size]) {  // NOLINT(google-explicit-constructor): written as a literal
        for (std::size_t i = 0; i < Size; ++i) chars[i] = literal[i];
    }
    constexpr operator std::string_view() const { return {chars, Size - 1}; }  // NOLINT(google-explicit-constructor)
};

// A number in decimal, or a word.
class text_value {
public:
    constexpr text_value(unsigned int number) {  // NOLINT(google-explicit-constructor)
        do digits_[--first_digit_] = static_cast<char>('0' + number % 10);
        while ((number /= 10) != 0);
    }
    template <std::size_t Size>
    constexpr text_value(const word<Size>& value) : word_(value) {}  // NOLINT(google-explicit-constructor)

    constexpr std::string_view text() const {
        return first_digit_ == max_digits ? word_ : std::string_view(digits_ + first_digit_, max_digits - first_digit_);
    }

private:
    static constexpr std::size_t max_digits = 10;
    char digits_[max_digits]{};
    std::size_t first_digit_ = max_digits;
    std::string_view word_;
};

// Puts the format with the values in place of each "{}" at `out`, or nowhere when that is null; returns the size.
consteval std::size_t write_text(char* out, std::string_view format, std::initializer_list<text_value> values) {
    std::size_t size = 0;
    const auto put = [&](std::string_view part) {
        if (out != nullptr) part.copy(out + size, part.size());
        size += part.size();
    };
    for (const text_value& value : values) {
        const std::size_t place = format.find("{}");
        if (place == std::string_view::npos) throw "more values than places";
        put(format.substr(0, place));
        put(value.text());
        format.remove_prefix(place + 2);
    }
    if (format.find("{}") != std::string_view::npos) throw "more places than values";
    put(format);
    return size;
}

template <std::size_t Size>
consteval auto make_text(std::string_view format, std::initializer_list<text_value> values) {
    std::array<char, Size + 1> chars{};
    write_text(chars.data(), format, values);
    return chars;
}

// Without the alignment that compilers give to larger arrays, texts lie side by side as literals do.
template <word Format, auto... Values>
alignas(1) inline constexpr auto text_chars = make_text<write_text(nullptr, Format, {Values...})>(Format, {Values...});

template <word Format, auto... Values>
inline constexpr const char* text = text_chars<Format, Values...>.data();

}  // namespace catalogue
