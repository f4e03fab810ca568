#ifndef ZEF_TEXT_POOL_H
#define ZEF_TEXT_POOL_H

#include <string>

namespace ZefModelRepositoryService {

/// One process-wide copy of each text that many records repeat (status
/// words, domain extension domains and names), so that a record keeps a
/// pointer instead of a string of its own. A large model repeats the same
/// few words hundreds of thousands of times.
class TextPool {
public:
    /// The pooled copy of `text`: equal texts give the same object, which
    /// stays valid and unchanged until the process ends. Thread-safe.
    static const std::string& shared(const std::string& text);

    /// The pooled empty text.
    static const std::string& empty();
};

} // namespace ZefModelRepositoryService

#endif // ZEF_TEXT_POOL_H
