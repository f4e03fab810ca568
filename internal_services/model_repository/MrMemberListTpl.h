#ifndef ZEF_MR_MEMBER_LIST_TPL_H
#define ZEF_MR_MEMBER_LIST_TPL_H

#include <vector>
#include <string>

#include "KeyHashIndex.h"
#include "ZefLog.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The ordered, owning list of the members of a container record (the
/// parameters of an action, the members of a struct). The published records
/// of the members form a chain through their next pointers in the order
/// the members were added; the container's first-member field points at the
/// head of that chain.
///
/// T must offer `std::string getId() const`, `getStruct()` (its published
/// record) and `setNext(T*)` (links wrapper and published record).
template <typename T>
class MrMemberListTpl {
public:
    using List = std::vector<T*>;

    MrMemberListTpl() = default;
    /// Destroys every member: the container owns its members.
    ~MrMemberListTpl()
    {
        for (T* member : _members) {
            delete member;
        }
    }

    MrMemberListTpl(const MrMemberListTpl&) = delete;
    MrMemberListTpl& operator=(const MrMemberListTpl&) = delete;

    /// Appends `member` and takes ownership of it. The first member becomes
    /// `first` (the container's first-member field); later ones are chained
    /// behind the last. Returns ZefOk, or (member not taken, error logged):
    /// ZefInvalidArgument for a null member ("Pointer of the member is 0,
    /// can not add to the list.") or one without identity key ("Member id is
    /// empty, can not add to the list."), ZefAlreadyExists for a key already
    /// listed ("Member (%s) already exist.").
    template <typename Record>
    ZefReturnT addMember(T* member, const Record*& first)
    {
        if (member == nullptr) {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Pointer of the member is 0, can not add to the list.");
            return ZefInvalidArgument;
        }
        const std::string key = member->getId();
        if (key.empty()) {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Member id is empty, can not add to the list.");
            return ZefInvalidArgument;
        }
        const std::size_t hash = KeyHashIndex::hashOf(key);
        if (_members.empty()) {
            _members.push_back(member);
            _keys.add(hash);
            first = &member->getStruct();
            return ZefOk;
        }
        if (_keys.contains(_members, key, hash)) {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Member (%s) already exist.", key.c_str());
            return ZefAlreadyExists;
        }
        _members.back()->setNext(member);
        _members.push_back(member);
        _keys.add(hash);
        return ZefOk;
    }

    /// The first member, or null for an empty list.
    T* front() const { return _members.empty() ? nullptr : _members.front(); }
    const List& getList() const { return _members; }
    bool empty() const { return _members.empty(); }
    size_t size() const { return _members.size(); }

private:
    List _members;
    KeyHashIndex _keys;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MR_MEMBER_LIST_TPL_H
