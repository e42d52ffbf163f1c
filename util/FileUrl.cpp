#include "util/FileUrl.h"

#include <algorithm>
#include <string>

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
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    while (!text.empty()) {
        const size_t escape = std::min(text.find('%'), text.size());
        decoded.append(text.substr(0, escape));
        text.remove_prefix(escape);
        const int high = text.size() > 2 ? hexDigit(text[1]) : -1;
        const int low = high >= 0 ? hexDigit(text[2]) : -1;
        if (low >= 0)
            decoded += static_cast<char>(high * 16 + low);
        else
            decoded.append(text.substr(0, 1));
        text.remove_prefix(std::min<size_t>(low >= 0 ? 3 : 1, text.size()));
    }
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
    url = url.substr(0, url.find_first_of("?#"));
    std::string decoded = percentDecoded(url);
    while (decoded.size() > 1 && decoded.back() == '/')
        decoded.pop_back();
    if (!decoded.starts_with('/') || decoded.find('\0') != decoded.npos)
        return std::nullopt;
    return QString::fromUtf8(decoded.data(), static_cast<qsizetype>(decoded.size()));
}

} // namespace FileUrl
