#ifndef ZEF_ATTR_WRAPPER_H
#define ZEF_ATTR_WRAPPER_H

#include <cstdint>
#include <string>

#include "CachedKey.h"
#include "GeneralPropertiesWrapper.h"
#include "RefId.h"
#include "TypeContainerWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one attribute of a class. Owns its published
/// ZefOamSpiMoAttribute; the attributes of a class are chained through next
/// in definition order.
///
/// Being a typed element it is also the reference by name (RefId) to its
/// referenced class, enumeration, derived type or struct, which compilation
/// resolves into the record's pointers, and it presents its type to the
/// query interface through its TypeContainerWrapper.
class AttrWrapper : public GeneralPropertiesWrapper, public RefId {
public:
    /// A new attribute: persistent, notifiable, not key, not mandatory, not
    /// read-only, not restricted; unique, not ordered; multiplicity 1..1
    /// (not given); no type; status 1; handles 0.
    AttrWrapper();
    /// Frees the strings of the record.
    ~AttrWrapper() override;

    AttrWrapper(const AttrWrapper&) = delete;
    AttrWrapper& operator=(const AttrWrapper&) = delete;

    /// mom name ~ mom version ~ class name ~ attribute name. Logs (error) and
    /// returns the empty string for a null part ("Couldn't get attribute id,
    /// momName is NULL", "... momVersion is NULL", "... moc name is NULL",
    /// "... attr name is NULL") or an empty one ("Couldn't get attribute id,
    /// momName is no set", "... momVersion is no set", "... moc name is not
    /// set", "... attribute name is not set").
    static std::string getAttrId(const char* momName, const char* momVersion, const char* mocName,
                                 const char* attrName);
    /// The key of a published attribute through its class and MOM: "Couldn't
    /// get attribute id, attr is NULL", "Couldn't get attribute id, attr->moc
    /// is NULL", "Couldn't get attribute id, attr->moc->mom is NULL".
    static std::string getAttrId(const ZefOamSpiMoAttribute* attr);

    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiMoAttribute& getStruct() { return _attr; }
    const ZefOamSpiMoAttribute& getStruct() const { return _attr; }
    TypeContainerWrapper& getTypeContainer() { return _typeContainer; }

    // Pointer and flag setters always succeed (ZefOk).
    ZefReturnT setMoc(const ZefOamSpiMoc* moc);
    /// Sets the type code of the record and of the wrapper's own copy.
    ZefReturnT setType(ZefOamSpiMrType_3 type);
    ZefReturnT setDerivedDatatype(const ZefOamSpiDerivedDatatype* ddt);
    ZefReturnT setEnumDatatype(const ZefOamSpiEnum* enumeration);
    ZefReturnT setStructDatatype(const ZefOamSpiStruct* structure);
    ZefReturnT setReferencedMoc(const ZefOamSpiMoc* moc);
    ZefReturnT setIsKey(bool isKey);
    ZefReturnT setIsMandatory(bool isMandatory);
    ZefReturnT setIsPersistent(bool isPersistent);
    ZefReturnT setIsReadOnly(bool isReadOnly);
    ZefReturnT setIsOrdered(bool isOrdered);
    ZefReturnT setIsUnique(bool isUnique);
    ZefReturnT setIsRestricted(bool isRestricted);
    ZefReturnT setIsNotifiable(bool isNotifiable);

    /// Lower multiplicity bound from text (int16, "*" = 32767); marks it given.
    /// ZefInvalidArgument (nothing changed) for a text that does not convert.
    ZefReturnT setMin(const std::string& text);
    /// Upper bound: the empty text and "*" mean unbounded (32767); a negative
    /// or unconvertible text is refused with ZefInvalidArgument.
    ZefReturnT setMax(const std::string& text);
    /// The lower bound as a number, marked given: compilation fills a
    /// default for every attribute without bounds, with no text to convert.
    void setMinValue(int16_t value);
    /// The upper bound as a number, marked given.
    void setMaxValue(int16_t value);
    /// First value wins: ZefAlreadyExists (and the error "Default value (%s)
    /// is already set to (%s).") for a second value.
    ZefReturnT setDefaultValue(const std::string& text);
    /// First value wins: ZefAlreadyExists for a second unit.
    ZefReturnT setUnit(const std::string& unit);

    /// Links `next` behind this attribute (wrapper and record); null ends
    /// the chain (the state of a class's first attribute).
    ZefReturnT setNext(AttrWrapper* next);
    AttrWrapper* getNext() const { return _next; }

    ZefOamSpiMrType_3 getType() const { return _type; }
    bool getIsMinSet() const { return _isMinSet; }
    bool getIsMaxSet() const { return _isMaxSet; }
    bool getIsRestricted() const { return _isRestricted; }
    bool getIsNotifiable() const { return _isNotifiable; }

    /// Name of the MOM of the attribute's class; logs "MOC is not set" or
    /// "MOM is not set" and returns the empty string when a link is missing.
    std::string getMomName() const;
    /// Version of that MOM, with the same failures as getMomName.
    std::string getMomVersion() const;

    /// Query handle of the attribute; 0 until registered.
    uint64_t getHandle() const { return _attr.handle; }
    void setHandle(uint64_t handle) { _attr.handle = handle; }

    /// The dump, indented by four blanks: "    -- Attribute (<name>) --"
    /// and one line per property.
    std::string toString() const;
    /// toString appended to `out` (a class dump holds all its attributes).
    void appendTo(std::string& out) const;

private:
    /// The attribute's MOM, or null after logging which link is missing.
    const ZefOamSpiMom* findMom() const;

    ZefOamSpiMoAttribute _attr;
    AttrWrapper* _next = nullptr;
    ZefOamSpiMrType_3 _type = ZefMrType3NotSet;
    bool _isMinSet = false;
    bool _isMaxSet = false;
    bool _isRestricted = false;
    bool _isNotifiable = true;
    TypeContainerWrapper _typeContainer;
    mutable CachedKey _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ATTR_WRAPPER_H
