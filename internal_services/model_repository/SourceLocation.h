#ifndef ZEF_SOURCE_LOCATION_H
#define ZEF_SOURCE_LOCATION_H

#include <cstdint>
#include <string>

namespace ZefModelRepositoryService {

/// Where an element of a model file begins: the file and the line and
/// column of its start tag, both counted from 1.
///
/// The file name is held by the repository (ModelRepository::noteModelFile),
/// so a location stays valid as long as the repository does and costs a
/// record no copy of the name. A line of 0 means the file is known but not
/// the place in it; a null file means nothing is known.
struct SourceLocation {
    const std::string* file = nullptr;
    uint32_t line = 0;
    uint32_t column = 0;

    /// True when at least the file is known.
    bool isKnown() const { return file != nullptr; }
};

} // namespace ZefModelRepositoryService

#endif // ZEF_SOURCE_LOCATION_H
