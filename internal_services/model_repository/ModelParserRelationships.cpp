#include "ModelParser.h"

#include <memory>
#include <string>
#include <utility>

#include <Poco/DOM/Attr.h>
#include <Poco/DOM/Node.h>

#include "AssociationEndWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "GeneralPropertiesWrapper.h"
#include "MocWrapper.h"
#include "ModelRepository.h"
#include "NameMatch.h"
#include "RecordFiling.h"
#include "MomWrapper.h"
#include "UniDirAssociationWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

using Poco::XML::Attr;
using Poco::XML::Node;

bool isElement(const Node& node) { return node.nodeType() == Node::ELEMENT_NODE; }

// The elements of a "relationship" that hold the body of one relationship
// kind; the relationship's own properties are the other children.
bool isRelationshipBody(const std::string& name) {
    return isNamed(name, "containment") || isNamed(name, "biDirectionalAssociation") || isNamed(name, "uniDirectionalAssociation");
}

// The warning about a status word a relationship refused. Obsolete and
// preliminary are misspelled; tools that read the findings know them so.
const char* relationshipStatusFailure(const std::string& word) {
    if (isNamed(word, "deprecated")) {
        return "Failed to set type (deprecated) of the cont (%s).";
    }
    if (isNamed(word, "obsolete")) {
        return "Failed to set type (obsolate) of the cont (%s).";
    }
    return "Failed to set type (priliminary) of the cont (%s).";
}

// Reads a "cardinality" element: both bounds are required, and with only
// one of them neither is set. `what` names the containment or association
// end in the findings, which speak of a containment in both cases.
template <typename SetMin, typename SetMax>
void readCardinality(ModelParser& parser, Node& cardinality, const std::string& what, SetMin setMin, SetMax setMax) {
    const ModelParser::ReadingScope reading(parser, cardinality);
    for (Attr* attr : parser.attributesOf(cardinality)) {
        parser.checkThrowException(4, "Cardinality should not have an attribute: %s.", attr->name().c_str());
    }
    Node* minNode = nullptr;
    Node* maxNode = nullptr;
    for (Node* child = cardinality.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            parser.ignoreUnsupportedElementTypeLog(*child);
        } else if (isNamed(child->nodeName(), "min")) {
            minNode = child;
        } else if (isNamed(child->nodeName(), "max")) {
            maxNode = child;
        } else {
            parser.ignoreUnknownElementLog(*child);
        }
    }
    if (minNode == nullptr || maxNode == nullptr) {
        parser.checkThrowException(3, "Must have min and max defined for containment: %s.", what.c_str());
        return;
    }
    const std::string min = parser.getPcdata(*minNode);
    if (setMin(min) != ZefOk) {
        parser.checkThrowException(4, "Invalid cardinality min (%s) value for containment (%s).", min.c_str(),
                                   what.c_str());
    }
    const std::string max = parser.getPcdata(*maxNode);
    if (setMax(max) != ZefOk) {
        parser.checkThrowException(4, "Invalid cardinality max (%s) value for containment (%s).", max.c_str(),
                                   what.c_str());
    }
}

// Reads the "name" attribute of a relationship into a record; the other
// attributes are unknown. Returns the name as stored.
std::string readRelationshipName(ModelParser& parser, Node& relationship, GeneralPropertiesWrapper& properties,
                                 const char* alreadySetFormat, const char* failedFormat) {
    parser.readNameAttribute(
        relationship, [&properties](const std::string& name) { return properties.setName(name); },
        alreadySetFormat, failedFormat);
    return properties.getName();
}

// Reads the properties a relationship gives the record it defines
// (description, specification, status words, filter, domain extensions) and
// hands its own body to `handleBody`. The other bodies of the relationship
// define records of their own and are passed over here.
template <typename HandleBody>
void readRelationshipProperties(ModelParser& parser, Node& relationship, Node& body,
                                GeneralPropertiesWrapper& properties, HandleBody handleBody) {
    const std::string recordName = properties.getName();
    for (Node* child = relationship.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            parser.ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (child == &body) {
            handleBody(*child);
        } else if (isRelationshipBody(name)) {
            continue;
        } else if (isNamed(name, "description")) {
            parser.reportSetterResult(properties.setDescription(parser.getPcdata(*child)),
                                      "Description of cont (%s) is already set.",
                                      "Failed to set description of the cont (%s).", recordName.c_str());
        } else if (ModelParser::isStatusWord(name)) {
            if (parser.setStatusWord(name, properties) != ZefOk) {
                parser.checkThrowException(4, relationshipStatusFailure(name), recordName.c_str());
            }
        } else if (isNamed(name, "specification")) {
            parser.reportSetterResult(properties.setSpecification(parser.getPcdata(*child)),
                                      "Specification of cont (%s) is already set.",
                                      "Failed to set specification of the cont (%s).", recordName.c_str());
        } else if (isNamed(name, "filter")) {
            parser.reportSetterResult(properties.setHidden(parser.getPcdata(*child)),
                                      "Filter of cont (%s) is already set.", "Failed to set filter of the cont (%s).",
                                      recordName.c_str());
        } else if (isNamed(name, "domainExtension")) {
            parser.handleDomainExtension(child, &properties);
        } else if (isNamed(name, "applicationTag") || isNamed(name, "visibility")) {
            parser.ignoreUnsupportedElementLog(*child);
        } else {
            parser.ignoreUnknownElementLog(*child);
        }
    }
}

void handleAssociationBody(ModelParser& parser, Node& body, MomWrapper& mom, BiDirAssociationWrapper& assoc) {
    parser.handleBidirAssociation(body, mom, assoc);
}

void handleAssociationBody(ModelParser& parser, Node& body, MomWrapper& mom, UniDirAssociationWrapper& assoc) {
    parser.handleUnidirAssociation(body, mom, assoc);
}

} // namespace

// ---- relationships of a MOM ----------------------------------------------------

void ModelParser::processRelationshipNode(Node& relationship, MomWrapper& mom) {
    ZEF_TRACE_ENTER(" >> Processing relationship: %s.", nameAttributeOf(relationship).c_str());
    const ReadingScope reading(*this, relationship);
    // Each body defines one record; the relationship's name, properties and
    // status words are read into that record by the record's handler.
    for (Node* child = relationship.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "containment")) {
            fileAndPublish(std::unique_ptr<ContWrapper>(processContNode(relationship, *child, mom)),
                           &ModelRepository::addCont, *_repository);
        } else if (isNamed(name, "biDirectionalAssociation")) {
            std::unique_ptr<BiDirAssociationWrapper> assoc(new BiDirAssociationWrapper());
            placeRecord(*assoc, relationship);
            processDirectionalAssocNode(relationship, *child, mom, *assoc);
            fileAndPublish(std::move(assoc), &ModelRepository::addBidir, *_repository);
        } else if (isNamed(name, "uniDirectionalAssociation")) {
            std::unique_ptr<UniDirAssociationWrapper> assoc(new UniDirAssociationWrapper());
            placeRecord(*assoc, relationship);
            processDirectionalAssocNode(relationship, *child, mom, *assoc);
            fileAndPublish(std::move(assoc), &ModelRepository::addUnidir, *_repository);
        }
    }
    ZEF_TRACE_LEAVE(" << Processed relationship: %s.", nameAttributeOf(relationship).c_str());
}

ContWrapper* ModelParser::processContNode(Node& relationship, Node& containment, MomWrapper& mom) {
    const ReadingScope reading(*this, relationship);
    std::unique_ptr<ContWrapper> cont(new ContWrapper(false));
    placeRecord(*cont, relationship);
    cont->setMom(&mom.getStruct());
    // The containment texts speak of the mom; they are the established ones.
    readRelationshipName(*this, relationship, *cont, "Mom name (%s) is already set.", "Failed to set mom name (%s).");
    readRelationshipProperties(*this, relationship, containment, *cont,
                               [this, &cont](Node& body) { handleContainment(body, *cont); });
    return cont.release();
}

void ModelParser::handleContainment(Node& containment, ContWrapper& cont) {
    const ReadingScope reading(*this, containment);
    ignoreAllAttributes(containment);
    const std::string contName = cont.getName();
    for (Node* child = containment.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "parent")) {
            handleContEnd(*child, cont, false);
        } else if (isNamed(name, "child")) {
            handleContEnd(*child, cont, true);
        } else if (isNamed(name, "notCreatable")) {
            if (cont.setCanCreate(false) != ZefOk) {
                checkThrowException(4, "Failed to set type (notCreatable) of the cont (%s).", contName.c_str());
            }
        } else if (isNamed(name, "notDeleteable")) {
            if (cont.setCanDelete(false) != ZefOk) {
                checkThrowException(4, "Failed to set type (notDeleteable) of the cont (%s).", contName.c_str());
            }
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, &cont);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
}

void ModelParser::handleContEnd(Node& end, ContWrapper& cont, bool kid) {
    ZEF_TRACE_ENTER(" >> Processing containment's end: %s (kid=%d).", end.nodeName().c_str(), kid ? 1 : 0);
    const ReadingScope reading(*this, end);
    ignoreAllAttributes(end);
    const std::string contName = cont.getName();
    for (Node* child = end.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "hasClass")) {
            for (Attr* attr : attributesOf(*child)) {
                if (!isNamed(attr->name(), "name")) {
                    ignoreUnknownAttributeLog(*attr);
                    continue;
                }
                const std::string mocName = getPocoData(attr);
                const ZefReturnT result = kid ? cont.setChildMocName(mocName) : cont.setParentMocName(mocName);
                if (result == ZefAlreadyExists) {
                    checkThrowException(3, kid ? "Containment (%s) child moc is already set."
                                               : "Containment (%s) parent moc is already set.",
                                        contName.c_str());
                }
            }
            for (Node* item = child->firstChild(); item != nullptr; item = item->nextSibling()) {
                if (!isElement(*item)) {
                    ignoreUnsupportedElementTypeLog(*item);
                } else if (isNamed(item->nodeName(), "mimName")) {
                    const std::string mimName = getPcdata(*item);
                    kid ? cont.setChildMimName(mimName) : cont.setParentMimName(mimName);
                } else if (isNamed(item->nodeName(), "mimVersion")) {
                    const std::string mimVersion = getPcdata(*item);
                    kid ? cont.setChildMimVersion(mimVersion) : cont.setParentMimVersion(mimVersion);
                } else {
                    ignoreUnknownElementLog(*item);
                }
            }
        } else if (isNamed(name, "cardinality")) {
            readCardinality(
                *this, *child, contName, [&cont](const std::string& text) { return cont.setMin(text); },
                [&cont](const std::string& text) { return cont.setMax(text); });
        } else if (isNamed(name, "description") || isNamed(name, "applicationTag")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
    ZEF_TRACE_LEAVE(" << Processed containment's end: %s (kid=%d).", end.nodeName().c_str(), kid ? 1 : 0);
}

// ---- containments between MOMs ---------------------------------------------------

void ModelParser::processInterMimNode(Node& interMim) {
    ZEF_TRACE_ENTER(" >> Processing Intermim: %s.", interMim.nodeName().c_str());
    const ReadingScope reading(*this, interMim);
    ignoreAllAttributes(interMim);
    for (Node* relationship = interMim.firstChild(); relationship != nullptr;
         relationship = relationship->nextSibling()) {
        if (!isElement(*relationship)) {
            ignoreUnsupportedElementTypeLog(*relationship);
            continue;
        }
        if (!isNamed(relationship->nodeName(), "relationship")) {
            ignoreUnsupportedElementLog(*relationship);
            continue;
        }
        ZEF_TRACE("processInterMimNode, Processing element (%s)", relationship->nodeName().c_str());

        const ReadingScope readingRelationship(*this, *relationship);
        std::unique_ptr<ContWrapper> cont(new ContWrapper(true));
        placeRecord(*cont, *relationship);
        const std::string contName = readRelationshipName(*this, *relationship, *cont,
                                                          "Name of interMim (%s) is already set.",
                                                          "Failed to set name of the interMim (%s).");
        bool hasContainment = false;
        for (Node* child = relationship->firstChild(); child != nullptr; child = child->nextSibling()) {
            if (!isElement(*child)) {
                ignoreUnsupportedElementTypeLog(*child);
                continue;
            }
            const std::string& name = child->nodeName();
            if (isNamed(name, "domainExtension")) {
                ZEF_TRACE("domainExtension in relationship is handled as part of containment");
            } else if (isStatusWord(name)) {
                if (setStatusWord(name, *cont) != ZefOk) {
                    checkThrowException(4, relationshipStatusFailure(name), contName.c_str());
                }
            } else if (isNamed(name, "containment")) {
                if (hasContainment) {
                    checkThrowException(4,
                                        "Relationship (%s) can have only one containment, taking first and ignoring rest.",
                                        contName.c_str());
                    continue;
                }
                hasContainment = true;
                handleContainment(*child, *cont);
            } else {
                ignoreUnknownElementLog(*child);
            }
        }
        if (!hasContainment) {
            // Nothing to register: a containment without classes could only
            // produce follow-up errors about its missing ends.
            checkThrowException(4, "Relationship (%s) has no containment.", contName.c_str());
            continue;
        }
        fileAndPublish(std::move(cont), &ModelRepository::addCont, *_repository);
    }
    ZEF_TRACE_LEAVE(" << Processed Intermim: %s.", interMim.nodeName().c_str());
}

// ---- associations ----------------------------------------------------------------

template <typename T>
void ModelParser::processDirectionalAssocNode(Node& relationship, Node& body, MomWrapper& mom, T& assoc) {
    ZEF_TRACE_ENTER(" >> Processing bi/uni directional association end: %s.", nameAttributeOf(relationship).c_str());
    const ReadingScope reading(*this, relationship);
    assoc.setMom(&mom.getStruct());
    for (Attr* attr : attributesOf(relationship)) {
        if (isNamed(attr->name(), "name")) {
            const std::string name = getPocoData(attr);
            // An empty name is reported by the repository when the
            // association is added.
            if (assoc.setName(name) == ZefAlreadyExists) {
                checkThrowException(4, "association (%s) name is already set.", name.c_str());
            }
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }
    readRelationshipProperties(*this, relationship, body, assoc,
                               [this, &mom, &assoc](Node& node) { handleAssociationBody(*this, node, mom, assoc); });
    ZEF_TRACE_LEAVE(" << Processed bi/uni directional association: %s .", assoc.getName().c_str());
}

template void ModelParser::processDirectionalAssocNode<BiDirAssociationWrapper>(Node&, Node&, MomWrapper&,
                                                                                BiDirAssociationWrapper&);
template void ModelParser::processDirectionalAssocNode<UniDirAssociationWrapper>(Node&, Node&, MomWrapper&,
                                                                                 UniDirAssociationWrapper&);

void ModelParser::handleBidirAssociation(Node& body, MomWrapper& mom, BiDirAssociationWrapper& bidir) {
    const ReadingScope reading(*this, body);
    ignoreAllAttributes(body);
    const std::string assocName = bidir.getName();
    int ends = 0;
    for (Node* child = body.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "associationEnd")) {
            ignoreUnknownElementLog(*child);
            continue;
        }
        if (ends == 2) {
            checkThrowException(4, "Invalid number of associations ends for bidirectional assoc (%s).",
                                assocName.c_str());
            continue;
        }
        ++ends;
        std::unique_ptr<AssociationEndWrapper> end(processAssociationEndNode(*child, mom, assocName));
        const std::string endId = end->getId();
        const std::string endName = end->getName();
        if (ends == 1) {
            if (bidir.setFirstAssociationEndId(endId) == ZefAlreadyExists) {
                checkThrowException(
                    3, "first Association end (%s) associated name is already set for bidirectional association. (%s).",
                    endName.c_str(), assocName.c_str());
            }
        } else if (bidir.setSecondAssociationEndId(endId) == ZefAlreadyExists) {
            checkThrowException(
                3, "second Association end (%s) associated name is already set for bidirectional association. (%s).",
                endName.c_str(), assocName.c_str());
        }
        fileAndPublish(std::move(end), &ModelRepository::addAssocEnd, *_repository);
    }
}

void ModelParser::handleUnidirAssociation(Node& body, MomWrapper& mom, UniDirAssociationWrapper& unidir) {
    const ReadingScope reading(*this, body);
    ignoreAllAttributes(body);
    const std::string assocName = unidir.getName();
    for (Node* child = body.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "hasClass")) {
            std::string mocName;
            for (Attr* attr : attributesOf(*child)) {
                if (isNamed(attr->name(), "name")) {
                    mocName = getPocoData(attr);
                } else {
                    ignoreUnknownAttributeLog(*attr);
                }
            }
            std::string mimName;
            std::string mimVersion;
            for (Node* item = child->firstChild(); item != nullptr; item = item->nextSibling()) {
                if (!isElement(*item)) {
                    ignoreUnsupportedElementTypeLog(*item);
                } else if (isNamed(item->nodeName(), "mimName")) {
                    mimName = getPcdata(*item);
                } else if (isNamed(item->nodeName(), "mimVersion")) {
                    mimVersion = getPcdata(*item);
                } else {
                    ignoreUnknownElementLog(*item);
                }
            }
            if (mocName.empty()) {
                checkThrowException(3, "Origin MOC for unidir (%s) not found", assocName.c_str());
            } else {
                unidir.setOriginMocId(MocWrapper::getMocId(mimName.c_str(), mimVersion.c_str(), mocName.c_str()));
            }
        } else if (isNamed(name, "associationEnd")) {
            std::unique_ptr<AssociationEndWrapper> end(processAssociationEndNode(*child, mom, assocName));
            const std::string endName = end->getName();
            const ZefReturnT result = unidir.setAssociationEnd(end->getId());
            if (result == ZefAlreadyExists) {
                checkThrowException(
                    3, "Association end (%s) associated name is already set for uni directional association. (%s).",
                    endName.c_str(), assocName.c_str());
            } else if (result != ZefOk) {
                checkThrowException(3, "Invalid name for Association end (%s), unidir association end id not set  (%s).",
                                    endName.c_str(), assocName.c_str());
            }
            fileAndPublish(std::move(end), &ModelRepository::addAssocEnd, *_repository);
        } else if (isNamed(name, "isExternal")) {
            if (unidir.setIsExternal() != ZefOk) {
                checkThrowException(4, "Failed to set isExternal for unidir (%s).", assocName.c_str());
            }
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
}

AssociationEndWrapper* ModelParser::processAssociationEndNode(Node& end, MomWrapper& mom,
                                                              const std::string& identifier) {
    ZEF_TRACE_ENTER(" >> Processing association end: %s.", nameAttributeOf(end).c_str());
    const ReadingScope reading(*this, end);
    std::unique_ptr<AssociationEndWrapper> record(new AssociationEndWrapper());
    placeRecord(*record, end);
    record->setMom(&mom.getStruct());
    // Without a relationship name the end has no identity; the repository
    // reports it when the end is added.
    record->setIdentifier(identifier);
    handleAssociationEnd(end, *record);
    ZEF_TRACE_LEAVE(" << Processed association end: %s .", record->getName().c_str());
    return record.release();
}

void ModelParser::handleAssociationEnd(Node& end, AssociationEndWrapper& record) {
    ZEF_TRACE_ENTER(" >> Processing association's end: %s.", nameAttributeOf(end).c_str());
    const ReadingScope reading(*this, end);
    for (Attr* attr : attributesOf(end)) {
        if (isNamed(attr->name(), "name")) {
            const std::string name = getPocoData(attr);
            if (record.setName(name) == ZefAlreadyExists) {
                checkThrowException(3, "AssociationEnd (%s) associated name is already set.", name.c_str());
            }
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }
    const std::string endName = record.getName();
    for (Node* child = end.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "hasClass")) {
            for (Attr* attr : attributesOf(*child)) {
                if (!isNamed(attr->name(), "name")) {
                    ignoreUnknownAttributeLog(*attr);
                } else if (record.setClassifier(getPocoData(attr)) == ZefAlreadyExists) {
                    checkThrowException(3, "AssociationEnd (%s) associated classifier is already set.",
                                        endName.c_str());
                }
            }
            for (Node* item = child->firstChild(); item != nullptr; item = item->nextSibling()) {
                if (!isElement(*item)) {
                    ignoreUnsupportedElementTypeLog(*item);
                } else if (isNamed(item->nodeName(), "mimName")) {
                    record.setMimName(getPcdata(*item));
                } else if (isNamed(item->nodeName(), "mimVersion")) {
                    record.setMimVersion(getPcdata(*item));
                } else {
                    ignoreUnknownElementLog(*item);
                }
            }
        } else if (isNamed(name, "cardinality")) {
            readCardinality(
                *this, *child, endName, [&record](const std::string& text) { return record.setLower(text); },
                [&record](const std::string& text) { return record.setUpper(text); });
        } else if (isNamed(name, "isReserving")) {
            if (record.setIsReserving() != ZefOk) {
                checkThrowException(4, "Failed to set type (isReserving) of the association (%s).", endName.c_str());
            }
        } else if (isNamed(name, "restricted")) {
            if (record.setIsRestricted() != ZefOk) {
                checkThrowException(4, "Failed to set type (isRestricted) of the association (%s).", endName.c_str());
            }
        } else if (isNamed(name, "description") || isNamed(name, "noNotification") || isNamed(name, "ordered") || isNamed(name, "defaultValue")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
}

} // namespace ZefModelRepositoryService
