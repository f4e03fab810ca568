#ifndef ZEF_DERIVED_TYPE_IF2_IMPL_H
#define ZEF_DERIVED_TYPE_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class DdtWrapper;

/// Query interface object of one derived data type: the derived type table
/// of version 2 and, in versions 3 and 4, the derived type slots of the type
/// container table (the restrictions are read there through the integer,
/// string and floating point tables).
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class DerivedTypeIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up DerivedType [%s]";

    /// Registers the type (pushDerivedType), its general properties and
    /// each of its value and length ranges, and stores the handles in the
    /// records. `record` must outlive the object.
    explicit DerivedTypeIf2Impl(DdtWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const DerivedTypeIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    /// Version 2: the stored base type when it is one of the codes 1 to 15;
    /// ZefInvalidArgument (out untouched) for any other code, as version 2
    /// has no code for a double and none for "not set".
    ZefReturnT getType(ZefOamSpiType_2& type) const;
    /// Versions 3 and 4: the code stored for the version, unchanged. ZefOk.
    ZefReturnT getType(ZefOamSpiMrType_3& type) const;
    ZefReturnT getType(ZefOamSpiMrType_4& type) const;
    ZefReturnT getResolution(int64_t& resolution) const;
    ZefReturnT getFloatResolution(double& resolution) const;
    /// The floating resolution as written in the model; null when not given.
    ZefReturnT getFloatStringResolution(const char*& resolution) const;
    ZefReturnT getStringRestrictionPattern(const char*& pattern) const;
    /// The text shown when a value breaks the pattern; null when not given.
    ZefReturnT getStringRestrictionExceptionText(const char*& exceptionText) const;
    /// The first length range.
    ZefReturnT getStringRestrictionLength(uint64_t& valueRange) const;
    /// The first value range.
    ZefReturnT getNumericRestrictionRange(uint64_t& valueRange) const;
    ZefReturnT getIsPassphrase(bool& isPassphrase) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiDerived_2& table);
    static void initInterface(ZefOamSpiMrTypeContainer_3& table);
    static void initInterface(ZefOamSpiMrTypeContainer_4& table);

private:
    DdtWrapper& _derivedType;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_DERIVED_TYPE_IF2_IMPL_H
