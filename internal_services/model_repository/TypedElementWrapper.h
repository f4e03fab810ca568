#ifndef ZEF_TYPED_ELEMENT_WRAPPER_H
#define ZEF_TYPED_ELEMENT_WRAPPER_H

#include <string>

#include "RefId.h"
#include "TypeContainerWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The data type part of a typed element record whose published record
/// embeds a ZefOamSpiDatatypeContainer (a parameter, a struct member, the
/// result of an action): the setters of the container, whether the
/// multiplicity bounds were given, the reference by name to the type
/// (RefId) that compilation resolves, and the container's presentation to
/// the query interface.
///
/// The record derives from this class and passes the container of its own
/// published record; the record resets the container in its constructor
/// and cleans it in its destructor (the container belongs to the record).
class TypedElementWrapper : public RefId {
public:
    /// Works on `container`, which must outlive this object; the container
    /// is not touched here.
    explicit TypedElementWrapper(ZefOamSpiDatatypeContainer& container);
    ~TypedElementWrapper() override = default;

    TypedElementWrapper(const TypedElementWrapper&) = delete;
    TypedElementWrapper& operator=(const TypedElementWrapper&) = delete;

    // Pointer, code and flag setters always succeed (ZefOk).
    ZefReturnT setType(ZefOamSpiMrType_3 type);
    ZefReturnT setDerivedDatatype(const ZefOamSpiDerivedDatatype* ddt);
    ZefReturnT setEnumDatatype(const ZefOamSpiEnum* enumeration);
    ZefReturnT setStructDatatype(const ZefOamSpiStruct* structure);
    ZefReturnT setReferencedMoc(const ZefOamSpiMoc* moc);
    ZefReturnT setIsOrdered(bool isOrdered);
    ZefReturnT setIsUnique(bool isUnique);

    /// First value wins: ZefAlreadyExists (and the error "Default value (%s)
    /// is already set to (%s).") for a second value.
    ZefReturnT setDefaultValue(const std::string& text);
    /// Lower multiplicity bound from text (int16, "*" = 32767); marks it
    /// given. A text that does not convert changes nothing and returns
    /// ZefInvalidArgument.
    ZefReturnT setMin(const std::string& text);
    /// Upper bound: the empty text and "*" mean unbounded (32767); a
    /// negative or unconvertible text is refused with ZefInvalidArgument.
    ZefReturnT setMax(const std::string& text);

    bool getIsMinSet() const { return _isMinSet; }
    bool getIsMaxSet() const { return _isMaxSet; }

    ZefOamSpiMrType_3 getType() const { return _container.type; }
    ZefOamSpiDatatypeContainer& getDatatype() { return _container; }
    const ZefOamSpiDatatypeContainer& getDatatype() const { return _container; }
    const ZefOamSpiDerivedDatatype* getDerivedDatatype() const { return _container.derivedDatatype; }
    const ZefOamSpiEnum* getEnumDatatype() const { return _container.enumDatatype; }
    const ZefOamSpiStruct* getStructDatatype() const { return _container.structDatatype; }
    const ZefOamSpiMoc* getReferencedMoc() const { return _container.referencedMoc; }

    /// The type as the query interface reads it, with its default values.
    TypeContainerWrapper& getTypeContainer() { return _typeContainer; }
    const TypeContainerWrapper& getTypeContainer() const { return _typeContainer; }

private:
    ZefOamSpiDatatypeContainer& _container;
    TypeContainerWrapper _typeContainer;
    bool _isMinSet = false;
    bool _isMaxSet = false;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_TYPED_ELEMENT_WRAPPER_H
