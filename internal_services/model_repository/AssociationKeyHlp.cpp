#include "AssociationKeyHlp.h"


#include "MrUtil.h"

namespace ZefModelRepositoryService {
namespace AssociationKeyHlp {

namespace {

bool isSet(const char* text)
{
    return text != nullptr && *text != '\0';
}

} // namespace

std::string build(const ZefOamSpiMom* mom, std::initializer_list<const char*> parts)
{
    if (mom == nullptr || !isSet(mom->generalProperties.name) || !isSet(mom->version)) {
        return std::string();
    }
    std::string key = MrUtil::joinKey({mom->generalProperties.name, mom->version});
    for (const char* part : parts) {
        if (!isSet(part)) {
            return std::string();
        }
        key += '~';
        key += part;
    }
    return key;
}

ZefReturnT setOnce(std::string& field, const std::string& value)
{
    if (value.empty()) {
        return ZefInvalidArgument;
    }
    if (!field.empty()) {
        return ZefAlreadyExists;
    }
    field = value;
    return ZefOk;
}

} // namespace AssociationKeyHlp
} // namespace ZefModelRepositoryService
