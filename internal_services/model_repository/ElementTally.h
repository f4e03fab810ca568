#ifndef ZEF_ELEMENT_TALLY_H
#define ZEF_ELEMENT_TALLY_H

#include <cstdint>
#include <string>

namespace ZefModelRepositoryService {

/// How many elements of one name a document holds, counted while it is
/// read, and how deep the first of them lies (the document element is at
/// depth 1): a reader that needs the elements of one name learns how many
/// there are, and usually where the first is, without a second walk over
/// the whole tree.
struct ElementTally {
    /// The name counted; nothing is counted while it is empty.
    std::string name;
    unsigned long count = 0;
    /// The depth of the first element counted; 0 while there is none.
    std::uint64_t firstDepth = 0;

    /// Counts an element named `elementName` at `depth` if it has the name.
    void note(const std::string& elementName, std::uint64_t depth) {
        if (!name.empty() && elementName == name && count++ == 0) {
            firstDepth = depth;
        }
    }

    /// Forgets what was counted, keeping the name.
    void restart() {
        count = 0;
        firstDepth = 0;
    }
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ELEMENT_TALLY_H
