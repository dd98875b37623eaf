#include <iconv.h>
#include <langinfo.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>

#include "platform/platform.h"

namespace ox::platform {
namespace {

struct code_page_name {
    unsigned number;
    const char* name;  ///< as iconv knows it
};

constexpr std::array<code_page_name, 12> code_pages{{
    {866, "CP866"},
    {1250, "CP1250"},
    {1251, "CP1251"},
    {1252, "CP1252"},
    {1253, "CP1253"},
    {1254, "CP1254"},
    {1255, "CP1255"},
    {1256, "CP1256"},
    {1257, "CP1257"},
    {1258, "CP1258"},
    {20127, "ASCII"},
    {65001, "UTF-8"},
}};

constexpr const char* wide_name = "WCHAR_T";

/// Null for a code page that is not in the list.
const char* charset(unsigned code_page) {
    if (code_page == 0) {
        const std::string_view locale = nl_langinfo(CODESET);
        // "C" and "POSIX" call theirs ASCII, under several names.
        const bool none =
            locale.empty() || locale == "ANSI_X3.4-1968" || locale == "ASCII" || locale == "US-ASCII";
        return none ? "UTF-8" : locale.data();
    }
    const auto found = std::find_if(code_pages.begin(), code_pages.end(),
                                    [&](const code_page_name& page) { return page.number == code_page; });
    return found == code_pages.end() ? nullptr : found->name;
}

const iconv_t no_conversion = reinterpret_cast<iconv_t>(-1);

/// An iconv descriptor.
class converter {
public:
    converter() = default;
    ~converter() { close(); }
    converter(const converter&) = delete;
    converter& operator=(const converter&) = delete;

    bool converts(const char* to, const char* from) const { return to_ == to && from_ == from; }
    void open(const char* to, const char* from) {
        close();
        to_ = to;
        from_ = from;
        handle_ = iconv_open(to, from);
    }
    /// Not where the system has no such conversion.
    bool is_open() const { return handle_ != no_conversion; }

    /// Converts all of `input`; for each unit that it cannot convert, `replacement` is put in its place.
    template <class Out, class In>
    std::basic_string<Out> convert(const In* input, std::size_t length, Out replacement) {
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        std::basic_string<Out> out;
        char* from = reinterpret_cast<char*>(const_cast<In*>(input));
        std::size_t left = length * sizeof(In);
        while (left > 0) {
            const bool done = step(out, &from, &left);
            if (done || errno == E2BIG) continue;
            flush(out);
            out += replacement;
            if (errno == EINVAL) break;  // the text ends within a character
            from += sizeof(In);
            left -= sizeof(In);
        }
        flush(out);
        return out;
    }

private:
    /// One call of iconv; false, with errno, when it stopped before the end of the input.
    template <class Out>
    bool step(std::basic_string<Out>& out, char** from, std::size_t* left) {
        std::array<Out, 256> block;
        char* to = reinterpret_cast<char*>(block.data());
        std::size_t room = sizeof(block);
        const std::size_t result = iconv(handle_, from, left, &to, &room);
        const int error = errno;
        out.append(block.data(), (sizeof(block) - room) / sizeof(Out));
        errno = error;
        return result != static_cast<std::size_t>(-1);
    }

    /// Some character sets hold a letter back until they know whether an accent follows.
    template <class Out>
    void flush(std::basic_string<Out>& out) {
        const int error = errno;
        step(out, nullptr, nullptr);
        errno = error;
    }

    void close() {
        if (is_open()) iconv_close(handle_);
        handle_ = no_conversion;
    }

    std::string to_, from_;
    iconv_t handle_ = no_conversion;
};

/// Null when the system has no such conversion; valid until the next call.
converter* find_converter(const char* to, const char* from) {
    // Opening one costs more than converting a short text, and a session uses two code pages, both ways. They
    // close when this library is unloaded; per thread they would keep it mapped.
    static std::array<converter, 4> kept;
    static std::size_t oldest = 0;
    auto found = std::ranges::find_if(kept, [&](const converter& each) { return each.converts(to, from); });
    if (found == kept.end()) {
        found = kept.begin() + static_cast<std::ptrdiff_t>(oldest);
        oldest = (oldest + 1) % kept.size();
        found->open(to, from);
    }
    return found->is_open() ? &*found : nullptr;
}

/// The lower half of every listed character set, and of every locale's, is ASCII.
template <class Unit>
bool is_ascii(const Unit* text, std::size_t length) {
    return std::all_of(text, text + length,
                       [](Unit c) { return static_cast<std::make_unsigned_t<Unit>>(c) < 0x80; });
}

}  // namespace

std::wstring to_wide(const char* text, std::size_t length, unsigned code_page) {
    const char* name = charset(code_page);
    if (!text || !name) return {};
    if (is_ascii(text, length)) return {text, text + length};
    converter* const found = find_converter(wide_name, name);
    return found ? found->convert<wchar_t>(text, length, L'\xFFFD') : std::wstring();
}

std::string to_narrow(const wchar_t* text, std::size_t length, unsigned code_page) {
    const char* name = charset(code_page);
    if (!text || !name) return {};
    if (is_ascii(text, length)) {
        std::string out(length, '\0');
        std::transform(text, text + length, out.begin(), [](wchar_t c) { return static_cast<char>(c); });
        return out;
    }
    converter* const found = find_converter(name, wide_name);
    return found ? found->convert<char>(text, length, '?') : std::string();
}

}  // namespace ox::platform
