#ifndef ZEF_RECORD_FILING_H
#define ZEF_RECORD_FILING_H

#include <memory>
#include <utility>

#include "If2Publisher.h"
#include "ModelRepository.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// Hands a record produced by a reading handler to a registry of the
/// repository. A record the repository refuses stays with the holder and is
/// deleted, also when the repository throws on its refusal (outside
/// standalone mode). A null record (refused by its handler) is not handed
/// over. True when the repository accepted the record.
template <typename T, typename Discard>
bool fileRecord(std::unique_ptr<T, Discard> holder, ZefReturnT (ModelRepository::*add)(T*),
                ModelRepository& repository)
{
    if (!holder) {
        return false;
    }
    if ((repository.*add)(holder.get()) != ZefOk) {
        return false;
    }
    holder.release();
    return true;
}

/// fileRecord, and an accepted record becomes reachable through the query
/// interface at once. A refused one never does: it no longer exists.
template <typename T, typename Discard>
bool fileAndPublish(std::unique_ptr<T, Discard> holder, ZefReturnT (ModelRepository::*add)(T*),
                    ModelRepository& repository)
{
    T* record = holder.get();
    if (!fileRecord(std::move(holder), add, repository)) {
        return false;
    }
    If2Publisher::publish(*record);
    return true;
}

} // namespace ZefModelRepositoryService

#endif // ZEF_RECORD_FILING_H
