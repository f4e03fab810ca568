#ifndef ZEF_ASSOCIATION_KEY_HLP_H
#define ZEF_ASSOCIATION_KEY_HLP_H

#include <initializer_list>
#include <string>

#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The rules the association records (ends, bidirectional and
/// unidirectional associations) share for their keys and for the names
/// that make them up.
namespace AssociationKeyHlp {

/// mom name ~ mom version ~ parts, or the empty string while the MOM, its
/// name or version, or any part is missing or empty. Nothing is logged:
/// the repository reports an association it cannot file.
std::string build(const ZefOamSpiMom* mom, std::initializer_list<const char*> parts);

/// First value wins: stores `value` in the empty `field` (ZefOk);
/// ZefAlreadyExists when the field holds a value, ZefInvalidArgument for
/// the empty text (the field is unchanged in both cases).
ZefReturnT setOnce(std::string& field, const std::string& value);

} // namespace AssociationKeyHlp

} // namespace ZefModelRepositoryService

#endif // ZEF_ASSOCIATION_KEY_HLP_H
