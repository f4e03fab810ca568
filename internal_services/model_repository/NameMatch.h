#ifndef ZEF_NAME_MATCH_H
#define ZEF_NAME_MATCH_H

#include <cstddef>
#include <string>

namespace ZefModelRepositoryService {

/// True when `name` is exactly `literal` (case-sensitive). The parser
/// compares the name of every element and attribute of a model with a
/// dozen literals; the lengths, compared first, tell most of them apart
/// without reading a character.
template <std::size_t N>
inline bool isNamed(const std::string& name, const char (&literal)[N])
{
    return name.size() == N - 1 && std::char_traits<char>::compare(name.data(), literal, N - 1) == 0;
}

} // namespace ZefModelRepositoryService

#endif // ZEF_NAME_MATCH_H
