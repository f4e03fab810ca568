#include "TextPool.h"

#include <mutex>
#include <unordered_set>

namespace ZefModelRepositoryService {

namespace {

// The pool outlives every record: created on first use and never emptied.
// An unordered_set never moves its elements, so references stay valid.
struct Pool {
    std::mutex lock;
    std::unordered_set<std::string> texts;
};

Pool& pool()
{
    static Pool instance;
    return instance;
}

} // namespace

const std::string& TextPool::shared(const std::string& text)
{
    Pool& texts = pool();
    std::lock_guard<std::mutex> guard(texts.lock);
    return *texts.texts.insert(text).first;
}

const std::string& TextPool::empty()
{
    static const std::string& text = shared(std::string());
    return text;
}

} // namespace ZefModelRepositoryService
