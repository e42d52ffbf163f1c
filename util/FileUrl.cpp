#include "util/FileUrl.h"

#include <algorithm>

namespace FileUrl {

namespace {

constexpr std::string_view scheme = "file:";

bool hasFileScheme(std::string_view url)
{
    if (url.size() < scheme.size())
        return false;
    for (size_t i = 0; i < scheme.size(); ++i) {
        const char c = url[i];
        if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c) != scheme[i])
            return false;
    }
    return true;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// A library holds a hundred thousand of these: one pass, one allocation.
std::string percentDecoded(std::string_view text)
{
    std::string decoded(text.size(), '\0');
    char *out = decoded.data();
    const char *const end = text.data() + text.size();
    for (const char *in = text.data(); in != end; ++in, ++out) {
        *out = *in;
        if (*in != '%' || end - in < 3)
            continue;
        const int high = hexDigit(in[1]);
        const int low = hexDigit(in[2]);
        if (high >= 0 && low >= 0) {
            *out = static_cast<char>(high * 16 + low);
            in += 2;
        }
    }
    decoded.resize(static_cast<size_t>(out - decoded.data()));
    return decoded;
}

} // namespace

std::optional<QString> path(std::string_view url)
{
    if (!hasFileScheme(url))
        return std::nullopt;
    url.remove_prefix(scheme.size());
    if (url.starts_with("//")) {
        const size_t slash = url.find('/', 2);
        url.remove_prefix(slash == url.npos ? url.size() : slash);
    }
    url = url.substr(0, url.find('?'));
    url = url.substr(0, url.find('#'));
    std::string decoded = percentDecoded(url);
    while (decoded.size() > 1 && decoded.back() == '/')
        decoded.pop_back();
    if (!decoded.starts_with('/') || decoded.find('\0') != decoded.npos)
        return std::nullopt;
    return QString::fromUtf8(decoded);
}

std::string of(std::string_view path)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    constexpr std::string_view front = "file://";
    const auto isEscaped = [](char c) {
        return c == '%' || c == '?' || c == '#';
    };
    std::string url;
    url.reserve(front.size() + path.size());
    url.append(front);
    if (std::ranges::none_of(path, isEscaped))
        return url.append(path);
    for (const char c : path) {
        if (isEscaped(c))
            url.append({'%', digits[c >> 4], digits[c & 15]});
        else
            url += c;
    }
    return url;
}

} // namespace FileUrl
