#include "TypeContainerWrapper.h"

#include "AttrWrapper.h"
#include "MrUtil.h"

namespace ZefModelRepositoryService {

namespace {

/// Hands out the handle of a linked record, or ZefNotFound when there is none.
template <typename Record>
ZefReturnT linkedHandle(const Record* record, uint64_t& handle)
{
    if (record == nullptr) {
        return ZefNotFound;
    }
    handle = record->handle;
    return ZefOk;
}

static_assert(alignof(AttrWrapper) > 1 && alignof(ZefOamSpiDatatypeContainer) > 1,
              "the lowest bit of a source address must be free to mark an attribute");

} // namespace

TypeContainerWrapper::TypeContainerWrapper(const ZefOamSpiDatatypeContainer* container)
    : _source(reinterpret_cast<std::uintptr_t>(container))
{
}

TypeContainerWrapper::TypeContainerWrapper(const AttrWrapper* attr)
    : _source(reinterpret_cast<std::uintptr_t>(attr) | kAttributeBit)
{
}

TypeContainerWrapper::~TypeContainerWrapper()
{
    const size_t count = defaultValueCount();
    for (size_t i = 0; i < count; ++i) {
        MrUtil::freeString(_defaultValues[i]);
    }
    delete[] _defaultValues;
}

size_t TypeContainerWrapper::defaultValueCount() const
{
    // The array's terminator counts them: no counter in every element for
    // the few that have default values.
    size_t count = 0;
    while (_defaultValues != nullptr && _defaultValues[count] != nullptr) {
        ++count;
    }
    return count;
}

TypeContainerWrapper::Fields TypeContainerWrapper::fields() const
{
    if (const AttrWrapper* attr = attribute()) {
        const ZefOamSpiMoAttribute& a = attr->getStruct();
        return Fields{a.type,          a.derivedDatatype,   a.enumDatatype, a.structDatatype,
                      a.referencedMoc, a.multiplicityRange, a.isOrdered,    a.isUnique};
    }
    const ZefOamSpiDatatypeContainer& c = *container();
    return Fields{c.type,          c.derivedDatatype,   c.enumDatatype, c.structDatatype,
                  c.referencedMoc, c.multiplicityRange, c.isOrdered,    c.isUnique};
}

ZefReturnT TypeContainerWrapper::getType(ZefOamSpiType_2& type) const
{
    const Fields f = fields();
    // Version 2 readers know derived types by their base type only.
    if (f.derivedDatatype != nullptr) {
        type = static_cast<ZefOamSpiType_2>(f.derivedDatatype->type);
    } else {
        type = static_cast<ZefOamSpiType_2>(f.type);
    }
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::getType(ZefOamSpiMrType_3& type) const
{
    type = fields().type;
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::getDerived(uint64_t& handle) const
{
    return linkedHandle(fields().derivedDatatype, handle);
}

ZefReturnT TypeContainerWrapper::getEnum(uint64_t& handle) const
{
    return linkedHandle(fields().enumDatatype, handle);
}

ZefReturnT TypeContainerWrapper::getStruct(uint64_t& handle) const
{
    return linkedHandle(fields().structDatatype, handle);
}

ZefReturnT TypeContainerWrapper::getReferencedMoc(uint64_t& handle) const
{
    return linkedHandle(fields().referencedMoc, handle);
}

ZefReturnT TypeContainerWrapper::getDefaultValue(const char* const*& values) const
{
    static const char* const noValues[1] = {nullptr};
    values = _defaultValues != nullptr ? _defaultValues : noValues;
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::getIsOrdered(bool& isOrdered) const
{
    isOrdered = fields().isOrdered;
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::getIsUnique(bool& isUnique) const
{
    isUnique = fields().isUnique;
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::getMultiplicityMin(uint64_t& min) const
{
    min = static_cast<uint64_t>(fields().multiplicityRange.min);
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::getMultiplicityMax(uint64_t& max) const
{
    max = static_cast<uint64_t>(fields().multiplicityRange.max);
    return ZefOk;
}

ZefReturnT TypeContainerWrapper::addDefaultValue(const std::string& text)
{
    // A new array of count + 1 entries plus the terminator keeps the values
    // in the order added and the array readable at any time.
    const size_t count = defaultValueCount();
    char** grown = new char*[count + 2];
    for (size_t i = 0; i < count; ++i) {
        grown[i] = _defaultValues[i];
    }
    grown[count] = MrUtil::toChar(text);
    grown[count + 1] = nullptr;
    delete[] _defaultValues;
    _defaultValues = grown;
    return ZefOk;
}

} // namespace ZefModelRepositoryService
