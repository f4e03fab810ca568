#ifndef ZEF_TYPE_CONTAINER_WRAPPER_H
#define ZEF_TYPE_CONTAINER_WRAPPER_H

#include <cstdint>
#include <string>

#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class AttrWrapper;

/// The data type of a typed element as the query interface reads it. Built
/// on the data type container of a parameter, struct member or action
/// result, or on an attribute, whose record holds the same fields directly;
/// every getter reads whichever of the two it was built on.
///
/// Also keeps the default values of the element as a null-terminated array
/// of strings in the order they were added (a sequence may have several).
class TypeContainerWrapper {
public:
    /// Reads `container`, which must outlive this object.
    explicit TypeContainerWrapper(const ZefOamSpiDatatypeContainer* container);
    /// Reads the record of `attr`, which must outlive this object (an
    /// attribute passes itself while it is being constructed: the record is
    /// only read later).
    explicit TypeContainerWrapper(const AttrWrapper* attr);
    /// Frees the default-value array and its strings.
    ~TypeContainerWrapper();

    TypeContainerWrapper(const TypeContainerWrapper&) = delete;
    TypeContainerWrapper& operator=(const TypeContainerWrapper&) = delete;

    /// Version 2 code: the base type of the derived type when the element
    /// refers to one, otherwise the element's own code. Always ZefOk.
    ZefReturnT getType(ZefOamSpiType_2& type) const;
    /// Version 3 code: the element's own code. Always ZefOk.
    ZefReturnT getType(ZefOamSpiMrType_3& type) const;

    /// Query handle of the referenced derived type, enumeration, struct or
    /// class: ZefOk, or ZefNotFound (handle untouched) when there is none.
    ZefReturnT getDerived(uint64_t& handle) const;
    ZefReturnT getEnum(uint64_t& handle) const;
    ZefReturnT getStruct(uint64_t& handle) const;
    ZefReturnT getReferencedMoc(uint64_t& handle) const;

    /// The null-terminated default-value array (a lone terminator when no
    /// value was added). Always ZefOk.
    ZefReturnT getDefaultValue(const char* const*& values) const;
    ZefReturnT getIsOrdered(bool& isOrdered) const;
    ZefReturnT getIsUnique(bool& isUnique) const;
    /// The multiplicity bounds widened to 64 bits. Always ZefOk.
    ZefReturnT getMultiplicityMin(uint64_t& min) const;
    ZefReturnT getMultiplicityMax(uint64_t& max) const;

    /// Appends a copy of text to the default values. ZefOk.
    ZefReturnT addDefaultValue(const std::string& text);

    /// Query handle; 0 until registered.
    uint64_t getHandle() const { return _handle; }
    void setHandle(uint64_t handle) { _handle = handle; }

private:
    /// The type fields, read from the container or from the attribute.
    struct Fields {
        ZefOamSpiMrType_3 type;
        const ZefOamSpiDerivedDatatype* derivedDatatype;
        const ZefOamSpiEnum* enumDatatype;
        const ZefOamSpiStruct* structDatatype;
        const ZefOamSpiMoc* referencedMoc;
        ZefOamSpiMultiplicityRange multiplicityRange;
        bool isOrdered;
        bool isUnique;
    };
    Fields fields() const;
    /// The number of default values held.
    size_t defaultValueCount() const;

    /// The attribute, or else the data type container, presented: one word
    /// for either, the lowest bit set for an attribute (both are aligned to
    /// 8 bytes, so that bit is free). Every typed element of a model has a
    /// type container.
    std::uintptr_t _source;
    static const std::uintptr_t kAttributeBit = 1;

    const AttrWrapper* attribute() const
    {
        return (_source & kAttributeBit) != 0 ? reinterpret_cast<const AttrWrapper*>(_source & ~kAttributeBit)
                                              : nullptr;
    }
    const ZefOamSpiDatatypeContainer* container() const
    {
        return (_source & kAttributeBit) == 0 ? reinterpret_cast<const ZefOamSpiDatatypeContainer*>(_source)
                                              : nullptr;
    }
    /// Always a valid array: the values added so far and a null terminator.
    /// The default values, null-terminated; null (read as an empty array)
    /// until the first one is added, as most elements have none.
    char** _defaultValues = nullptr;
    uint64_t _handle = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_TYPE_CONTAINER_WRAPPER_H
