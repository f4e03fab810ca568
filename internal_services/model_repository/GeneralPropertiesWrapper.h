#ifndef ZEF_GENERAL_PROPERTIES_WRAPPER_H
#define ZEF_GENERAL_PROPERTIES_WRAPPER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "DomainExtensionList.h"
#include "DomainExtensionWrapper.h"
#include "RecordPool.h"
#include "SourceLocation.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The general properties of an element (name, description, specification,
/// status, hidden marker), kept in the fragment at the head of the owning
/// element's published record, plus the status as text, the element's
/// domain extensions and the query handle of its general properties.
///
/// Every element record derives from this class, constructed on the
/// fragment and the general-properties handle field of its own published
/// record:
///
///     class MocWrapper : public GeneralPropertiesWrapper {
///         MocWrapper() : GeneralPropertiesWrapper(_moc.generalProperties, &_moc.generalPropertiesHandle)
///         { setInitialValues(); ... }
///         ~MocWrapper() override { MrUtil::cleanGeneralPropertiesHlp(_moc.generalProperties); ... }
///         std::string getId() const override;   // the cached identity key
///         ZefOamSpiMoc _moc;
///     };
///
/// The constructor only binds the fragment, so it may be a member of the
/// derived record that is initialised later. The fragment's strings belong
/// to the owner, which frees them at destruction; this object owns the
/// domain extensions only.
class GeneralPropertiesWrapper {
public:
    /// Works on `gp`, which must outlive this object; the fragment is not
    /// touched. The general-properties handle is kept in `*handleSlot` (the
    /// field of the owner's published record), or inside this object when
    /// `handleSlot` is null.
    explicit GeneralPropertiesWrapper(ZefOamSpiGeneralProperties& gp, uint64_t* handleSlot = nullptr);
    /// Works on `gp`, resets it and fills it with copies of every string of
    /// `source`, its status, status text and domain extensions. The handle
    /// is not copied (it starts at 0).
    GeneralPropertiesWrapper(ZefOamSpiGeneralProperties& gp, const GeneralPropertiesWrapper& source);
    /// Frees the domain extensions (not the fragment's strings).
    virtual ~GeneralPropertiesWrapper();

    GeneralPropertiesWrapper(const GeneralPropertiesWrapper&) = delete;
    GeneralPropertiesWrapper& operator=(const GeneralPropertiesWrapper&) = delete;

    /// Element records come from the record pool (see RecordPool).
    static void* operator new(std::size_t size) { return RecordPool::allocate(size); }
    static void operator delete(void* block, std::size_t size) noexcept { RecordPool::release(block, size); }

    /// The identity key of the element. Here: its name, or the empty string
    /// when none is set; element records return their cached key.
    virtual std::string getId() const;

    /// First value wins: ZefOk, ZefAlreadyExists when a name is set,
    /// ZefInvalidArgument for the empty text.
    ZefReturnT setName(const std::string& name);
    /// First value wins: ZefOk or ZefAlreadyExists; the empty text is a value.
    ZefReturnT setDescription(const std::string& description);
    /// First value wins: ZefOk or ZefAlreadyExists; the empty text is a value.
    ZefReturnT setSpecification(const std::string& specification);
    /// First value wins: ZefOk or ZefAlreadyExists; the empty text is a value.
    ZefReturnT setHidden(const std::string& hidden);
    /// Sets the status unless the element is already obsolete (3): that
    /// status is final, a later status statement does not undo it. ZefOk.
    ZefReturnT setStatus(ZefOamSpiStatus status);
    /// Sets the status text ("CURRENT", "DEPRECATED", ...). ZefOk, or
    /// ZefInvalidArgument for the empty text.
    ZefReturnT setStatus_3(const std::string& status);
    /// The status text, "CURRENT" until set.
    const std::string& getStatus3() const { return *_status3; }
    /// Resets the fragment (all strings null, status 1) and the status text
    /// to "CURRENT". Strings held before are not freed.
    void setInitialValues();

    ZefOamSpiGeneralProperties& getStruct() { return _gp; }
    const ZefOamSpiGeneralProperties& getStruct() const { return _gp; }
    /// This object: the general properties part of an element record (whose
    /// own getStruct() returns the element's record).
    GeneralPropertiesWrapper& getGeneralProperties() { return *this; }
    const GeneralPropertiesWrapper& getGeneralProperties() const { return *this; }
    /// The element name, or the empty string when none is set.
    std::string getName() const;

    /// Query handle of the general properties; 0 until registered.
    uint64_t getGeneralPropertiesHandle() const { return *_handleSlot; }
    void setGeneralPropertiesHandle(uint64_t handle) { *_handleSlot = handle; }

    /// Appends a domain extension (kept in the order added).
    void push_back_domain_extension(const std::string& domain, const std::string& name, const std::string& value);
    /// The first domain extension of the given domain ("QCIM") and name, or
    /// null when the element has none.
    const DomainExtensionWrapper* getDomainExtension(const std::string& extensionName,
                                                     const std::string& propertyName) const;
    /// All domain extensions in the order added.
    const DomainExtensionList& getDomainExtensions() const { return _domainExtensions; }
    /// True when the element carries the domain extension "QCIM"/"isNillable".
    bool isNillable() const;

    /// Where the element that defined this record stands in its model file;
    /// unknown for a record no parser made. A record cloned from another
    /// keeps the place of the original.
    const SourceLocation& getSourceLocation() const { return _sourceLocation; }
    void setSourceLocation(const SourceLocation& location) { _sourceLocation = location; }

protected:
    /// Fills the fragment, which must hold no strings (freshly reset), with
    /// copies of the strings, status, status text and domain extensions of
    /// `source`; used by records that clone another record.
    void copyGeneralPropertiesFrom(const GeneralPropertiesWrapper& source);

private:
    ZefOamSpiGeneralProperties& _gp;
    /// The status text, pooled: every record of a model has one of a few.
    const std::string* _status3;
    DomainExtensionList _domainExtensions;
    uint64_t _ownHandle = 0;
    uint64_t* _handleSlot;
    SourceLocation _sourceLocation;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_GENERAL_PROPERTIES_WRAPPER_H
