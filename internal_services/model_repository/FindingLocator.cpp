#include "FindingLocator.h"

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "ModelRepository.h"
#include "MomWrapper.h"
#include "StructWrapper.h"
#include "UniDirAssociationWrapper.h"

namespace ZefModelRepositoryService {

namespace {

template <typename Map>
const GeneralPropertiesWrapper* inMap(const Map& map, const std::string& key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

// The key of an attribute or action is its class's key followed by "~" and
// its own name; the class finds it in its key index.
template <typename Member>
const GeneralPropertiesWrapper* inClass(const ModelRepository& repository, const std::string& key,
                                        const Member* (MocWrapper::*find)(const std::string&) const) {
    const std::string::size_type last = key.rfind('~');
    if (last == std::string::npos) {
        return nullptr;
    }
    const auto moc = repository.getMocMap().find(key.substr(0, last));
    if (moc == repository.getMocMap().end()) {
        return nullptr;
    }
    return (moc->second->*find)(key);
}

} // namespace

FindingLocator::FindingLocator(const ModelRepository& repository) : _repository(repository) {}

const GeneralPropertiesWrapper* FindingLocator::find(RuleSubject subject, const std::string& key) const {
    switch (subject) {
    case RuleSubject::Mom:
        for (const MomWrapper* mom : _repository.getMomList()) {
            if (mom->getId() == key) {
                return mom;
            }
        }
        return nullptr;
    case RuleSubject::Moc:
        return inMap(_repository.getMocMap(), key);
    case RuleSubject::Attribute:
        return inClass(_repository, key, &MocWrapper::findAttr);
    case RuleSubject::Action:
        return inClass(_repository, key, &MocWrapper::findMoAction);
    case RuleSubject::Enum:
        return inMap(_repository.getEnumMap(), key);
    case RuleSubject::Ddt:
        return inMap(_repository.getDdtMap(), key);
    case RuleSubject::Struct:
        return inMap(_repository.getStructMap(), key);
    case RuleSubject::Containment:
        return inMap(_repository.getContMap(), key);
    case RuleSubject::AssociationEnd:
        return inMap(_repository.getAssocEndMap(), key);
    case RuleSubject::Bidir:
        return inMap(_repository.getBidirMap(), key);
    case RuleSubject::Unidir:
        return inMap(_repository.getUnidirMap(), key);
    case RuleSubject::None:
    case RuleSubject::Parameter:
    case RuleSubject::StructMember:
    case RuleSubject::Member:
    case RuleSubject::Literal:
    case RuleSubject::TypedElement:
        return nullptr;
    }
    return nullptr;
}

} // namespace ZefModelRepositoryService
