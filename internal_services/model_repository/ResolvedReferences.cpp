#include "ResolvedReferences.h"

#include <functional>
#include <initializer_list>

#include "RefId.h"

namespace ZefModelRepositoryService {

std::size_t ResolvedReferences::KeyHash::operator()(const Key& key) const
{
    // Pooled texts lie apart by at least their own size: the low bits of
    // an address say little, so each address is mixed in whole.
    std::size_t hash = static_cast<std::size_t>(key.kind);
    for (const std::string* text : {key.name, key.momName, key.momVersion}) {
        hash = hash * 1000003u ^ std::hash<const std::string*>()(text);
    }
    return hash ^ (hash >> 17);
}

ResolvedReferences::Key ResolvedReferences::keyOf(Kind kind, const RefId& ref)
{
    return Key{kind, &ref.getRefName(), &ref.getRefMomName(), &ref.getRefMomVersion()};
}

const GeneralPropertiesWrapper* ResolvedReferences::find(Kind kind, const RefId& ref) const
{
    const auto found = _targets.find(keyOf(kind, ref));
    return found != _targets.end() ? found->second : nullptr;
}

void ResolvedReferences::add(Kind kind, const RefId& ref, const GeneralPropertiesWrapper* target)
{
    _targets.emplace(keyOf(kind, ref), target);
}

} // namespace ZefModelRepositoryService
