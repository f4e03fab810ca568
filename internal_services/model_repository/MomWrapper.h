#ifndef ZEF_MOM_WRAPPER_H
#define ZEF_MOM_WRAPPER_H

#include <cstdint>
#include <string>
#include <vector>

#include "GeneralPropertiesWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one managed object model (a "mim" of a model file). Owns
/// its published ZefOamSpiMom; all MOMs of the repository are chained
/// through next in the order they were added.
class MomWrapper : public GeneralPropertiesWrapper {
public:
    /// An empty record: every string null, no links, status 1, handles 0.
    MomWrapper();
    /// Frees every string of the record and the correction text.
    ~MomWrapper() override;

    MomWrapper(const MomWrapper&) = delete;
    MomWrapper& operator=(const MomWrapper&) = delete;

    /// mom name ~ mom version. Logs (error) and returns the empty string for
    /// a null or empty part: "Couldn't get mom id, mom name is NULL",
    /// "Couldn't get mom id, mom version is NULL", "Couldn't get mom id, mom
    /// name isn't set", "Couldn't get mom id, mom version isn't set".
    static std::string getMomId(const char* momName, const char* momVersion);
    /// The key of a published MOM; "Couldn't get mom id, mom is NULL" for null.
    static std::string getMomId(const ZefOamSpiMom* mom);

    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiMom& getStruct() { return _mom; }
    const ZefOamSpiMom& getStruct() const { return _mom; }

    /// Required, first value wins: ZefAlreadyExists when set; the empty text
    /// logs "MOM version can not be empty, must be set." and is refused with
    /// ZefInvalidArgument.
    ZefReturnT setVersion(const std::string& version);
    /// As setVersion ("MOM correction can not be empty, must be set."); the
    /// correction is kept beside the published record.
    ZefReturnT setCorrection(const std::string& correction);
    /// First value wins (ZefAlreadyExists); the empty text is a value.
    ZefReturnT setRelease(const std::string& release);
    ZefReturnT setNamespaceURI(const std::string& namespaceURI);
    ZefReturnT setNamespacePrefix(const std::string& namespacePrefix);
    ZefReturnT setDocNo(const std::string& docNo);
    ZefReturnT setRevision(const std::string& revision);
    ZefReturnT setAuthor(const std::string& author);
    ZefReturnT setOrganization(const std::string& organization);

    /// The version, or the empty string when none is set.
    std::string getVersion() const;
    /// The correction text, or null when none is set.
    const char* getCorrection() const { return _correction; }

    /// The MOM's root class, set by compilation. ZefOk.
    ZefReturnT setRootMoc(const ZefOamSpiMoc* rootMoc);
    /// The next MOM of the published chain. ZefOk.
    ZefReturnT setNext(const ZefOamSpiMom* next);
    /// Links `next` behind this MOM: wrapper and published record. ZefOk.
    ZefReturnT setNext(MomWrapper* next);
    MomWrapper* getNext() const { return _next; }

    /// The identity key of the root class. Logs "Root MOC is not set for
    /// '%s' MOM." or "RootMoc mom is not set for '%s' MOM." (with the MOM
    /// name) and returns the empty string when there is no root class or it
    /// has no MOM.
    std::string getRootMocId() const;
    /// The identity key of the next MOM; "Next MOM is not set for '%s' MOM."
    /// and the empty string when this is the last one.
    std::string getNextId() const;

    void setFileName(const std::string& fileName) { _fileName = fileName; }
    const std::string& getFileName() const { return _fileName; }
    void setHasMocs(bool hasMocs) { _hasMocs = hasMocs; }
    bool getHasMocs() const { return _hasMocs; }
    /// Appends the name of a model feature.
    void setModelFeatureNames(const std::string& name) { _modelFeatures.push_back(name); }
    /// A copy of the model feature names in the order added.
    std::vector<std::string> getModelFeatures() const { return _modelFeatures; }

    /// Query handle of the MOM; 0 until registered.
    uint64_t getHandle() const { return _mom.handle; }
    void setHandle(uint64_t handle) { _mom.handle = handle; }

    /// The dump: "-- Mom (<name>) --" and one line per property.
    std::string toString() const;

private:
    ZefOamSpiMom _mom;
    MomWrapper* _next = nullptr;
    char* _correction = nullptr;
    std::string _fileName;
    bool _hasMocs = false;
    std::vector<std::string> _modelFeatures;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MOM_WRAPPER_H
