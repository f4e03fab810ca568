#ifndef ZEF_TYPE_CONTAINER_IF2_IMPL_H
#define ZEF_TYPE_CONTAINER_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class DerivedTypeIf2Impl;
class TypeContainerWrapper;
class ValueRangeIf2Impl;

/// Query interface object of the data type of one attribute, parameter,
/// action result or struct member. Besides the type container tables it
/// answers the class reference, integer, string and floating point tables
/// of versions 3 and 4, which read the restrictions of the derived type the
/// element refers to.
///
/// Property getters take the property codes of those tables (the codes of
/// version 3 and version 4 are the same numbers) and answer ZefNotFound for
/// a code the table does not carry and, with the code of getDerived, for an
/// element without derived type.
class TypeContainerIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up TypeContainer [%s]";

    /// Registers the type container (pushTypeContainer) and stores the
    /// handle in it. `typeContainer` must outlive the object.
    explicit TypeContainerIf2Impl(TypeContainerWrapper& typeContainer);

    /// Registers a type container and returns the handle.
    static uint64_t registerFor(TypeContainerWrapper& typeContainer);
    /// The object of `handle`; std::out_of_range when there is none.
    static const TypeContainerIf2Impl& lookup(uint64_t handle);

    /// Version 2: the base type of a derived type, otherwise the element's
    /// own type code. Always ZefOk.
    ZefReturnT getType(ZefOamSpiType_2& type) const;
    /// Versions 3 and 4: the element's own type code. Always ZefOk.
    ZefReturnT getType(ZefOamSpiMrType_3& type) const;
    ZefReturnT getType(ZefOamSpiMrType_4& type) const;
    /// Handles of the referenced derived type, enumeration, struct and
    /// class; ZefNotFound (out untouched) when there is none.
    ZefReturnT getDerived(uint64_t& derivedType) const;
    ZefReturnT getEnum(uint64_t& enumType) const;
    ZefReturnT getStruct(uint64_t& structType) const;
    ZefReturnT getReferencedMoc(uint64_t& moc) const;
    /// The default values, null-terminated. Always ZefOk.
    ZefReturnT getDefaultValue(const char* const*& values) const;
    ZefReturnT getIsOrdered(bool& isOrdered) const;
    ZefReturnT getIsUnique(bool& isUnique) const;
    ZefReturnT getMultiplicityMin(uint64_t& min) const;
    ZefReturnT getMultiplicityMax(uint64_t& max) const;

    /// Class reference table: the referenced class (ZefMrMoRefProperty4Moc).
    ZefReturnT getMoRefHandleProperty(int property, uint64_t& handle) const;
    /// Integer table: resolution, min and max of the first value range.
    ZefReturnT getIntProperty(int property, int64_t& value) const;
    /// Integer table: the first value range.
    ZefReturnT getIntHandleProperty(int property, uint64_t& handle) const;
    /// String table: pattern and exception text.
    ZefReturnT getStringTextProperty(int property, const char*& value) const;
    /// String table: min and max of the first length range.
    ZefReturnT getStringIntProperty(int property, int64_t& value) const;
    /// String table: whether the value is a passphrase.
    ZefReturnT getStringBoolProperty(int property, bool& value) const;
    /// String table: the first length range.
    ZefReturnT getStringHandleProperty(int property, uint64_t& handle) const;
    /// Floating point table: resolution, min and max of the first value range.
    ZefReturnT getFloatProperty(int property, double& value) const;
    /// Floating point table: the resolution as written in the model.
    ZefReturnT getFloatStringResolution(const char*& resolution) const;
    /// Floating point table: the first value range.
    ZefReturnT getFloatHandleProperty(int property, uint64_t& handle) const;

    /// Fill the tables of each version this kind answers.
    static void initInterface(ZefOamSpiTypeContainer_2& table);
    static void initInterface(ZefOamSpiMrTypeContainer_3& table);
    static void initInterface(ZefOamSpiMrTypeContainer_4& table);
    static void initInterface(ZefOamSpiMrMoRef_3& table);
    static void initInterface(ZefOamSpiMrInt_3& table);
    static void initInterface(ZefOamSpiMrString_3& table);
    static void initInterface(ZefOamSpiMrFloat_3& table);
    static void initInterface(ZefOamSpiMrMoRef_4& table);
    static void initInterface(ZefOamSpiMrInt_4& table);
    static void initInterface(ZefOamSpiMrString_4& table);
    static void initInterface(ZefOamSpiMrFloat_4& table);

private:
    /// `answer(derived type)`, or the code of getDerived, or
    /// ZefInvalidArgument when the derived type cannot be looked up.
    template <typename Answer>
    ZefReturnT withDerivedType(Answer answer) const;
    /// `answer(range)` for the first range the derived type's `firstRange`
    /// getter names, or the code that stopped the way there.
    template <typename Answer>
    ZefReturnT withFirstRange(ZefReturnT (DerivedTypeIf2Impl::*firstRange)(uint64_t&) const, Answer answer) const;

    TypeContainerWrapper& _typeContainer;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_TYPE_CONTAINER_IF2_IMPL_H
