#include "XmlGuardFilter.h"

#include <Poco/Exception.h>
#include <Poco/SAX/Attributes.h>
#include <Poco/SAX/Locator.h>
#include <Poco/SAX/XMLReader.h>
#include <Poco/XML/NamePool.h>

#include "ElementPositions.h"
#include "InputLimits.h"

namespace ZefModelRepositoryService {

using Poco::XML::WhitespaceFilter;
using Poco::XML::XMLChar;
using Poco::XML::XMLReader;
using Poco::XML::XMLString;

namespace {

std::uint64_t saturatingSum(std::uint64_t a, std::uint64_t b) { return a > UINT64_MAX - b ? UINT64_MAX : a + b; }

std::uint64_t lengthOf(int length) { return length > 0 ? static_cast<std::uint64_t>(length) : 0; }

} // namespace

XmlGuardFilter::XmlGuardFilter(XMLReader* parent, XmlParseStop& stop, const InputLimits& limits,
                               ElementPositions* positions)
    : WhitespaceFilter(parent),
      _stop(stop),
      _positions(positions),
      _maxDepth(limits.maxDepth),
      _expansionLimit(limits.maxEntityExpansion),
      _outputLimit(saturatingSum(3 * static_cast<std::uint64_t>(stop.size()), limits.maxEntityExpansion)),
      _entities(limits.maxEntityExpansion) {}

void XmlGuardFilter::setupParse() {
    WhitespaceFilter::setupParse();
    parent()->setProperty(XMLReader::PROPERTY_DECLARATION_HANDLER, static_cast<Poco::XML::DeclHandler*>(this));
}

void XmlGuardFilter::setProperty(const XMLString& propertyId, const XMLString& value) {
    WhitespaceFilter::setProperty(propertyId, value);
}

void XmlGuardFilter::setProperty(const XMLString& propertyId, void* value) {
    if (propertyId == XMLReader::PROPERTY_DECLARATION_HANDLER) {
        _declHandler = static_cast<Poco::XML::DeclHandler*>(value);
    } else {
        WhitespaceFilter::setProperty(propertyId, value);
    }
}

void* XmlGuardFilter::getProperty(const XMLString& propertyId) const {
    if (propertyId == XMLReader::PROPERTY_DECLARATION_HANDLER) {
        return _declHandler;
    }
    return WhitespaceFilter::getProperty(propertyId);
}

// ---- the limits ------------------------------------------------------------------

std::string XmlGuardFilter::expansionReason(const std::string& what) const {
    return what + " " + std::to_string(_expansionLimit) + " bytes (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)";
}

bool XmlGuardFilter::produce(std::uint64_t bytes) {
    _produced = saturatingSum(_produced, bytes);
    if (_produced > _outputLimit) {
        refuse(expansionReason("entity references expand to more than"));
        return false;
    }
    return true;
}

bool XmlGuardFilter::admitElement(const Poco::XML::Attributes& attributes) {
    if (++_depth > _maxDepth) {
        refuse("elements nested deeper than " + std::to_string(_maxDepth) + " levels (ZEF_VALIDATOR_MAX_DEPTH)");
        return false;
    }
    if (_hasDocumentType) {
        const int count = attributes.getLength();
        for (int i = 0; i < count; ++i) {
            if (!produce(attributes.getValue(i).size())) {
                return false;
            }
        }
    }
    return true;
}

void XmlGuardFilter::notePosition() {
    if (_locator != nullptr) {
        // The reader counts lines from 1 but columns from 0; a report counts
        // both from 1, as editors do.
        _positions->noteStartTag(static_cast<uint32_t>(_locator->getLineNumber()),
                                 static_cast<uint32_t>(_locator->getColumnNumber()) + 1);
    } else {
        _positions->noteStartTag(0, 0);
    }
}

// ---- content ---------------------------------------------------------------------

void XmlGuardFilter::setDocumentLocator(const Poco::XML::Locator* locator) {
    _locator = locator;
    WhitespaceFilter::setDocumentLocator(locator);
}

void XmlGuardFilter::startDocument() {
    if (!stopped()) {
        WhitespaceFilter::startDocument();
    }
}

void XmlGuardFilter::endDocument() {
    if (!stopped()) {
        WhitespaceFilter::endDocument();
    }
}

void XmlGuardFilter::startElement(const XMLString& uri, const XMLString& localName, const XMLString& qname,
                                  const Poco::XML::Attributes& attributes) {
    if (stopped() || !admitElement(attributes)) {
        return;
    }
    if (_positions != nullptr) {
        notePosition();
    }
    try {
        WhitespaceFilter::startElement(uri, localName, qname, attributes);
    } catch (const Poco::PoolOverflowException&) {
        // The element, and its names, did not reach the tree.
        refuse("more than " + std::to_string(POCO_XML_NAMEPOOL_DEFAULT_SIZE) +
               " distinct element and attribute names, more than a DOM document holds");
        return;
    }
    if (_tally != nullptr) {
        // The DOM names an element by its qualified name, or by its local
        // name when the reader reports none.
        _tally->note(qname.empty() ? localName : qname, _depth);
    }
}

void XmlGuardFilter::endElement(const XMLString& uri, const XMLString& localName, const XMLString& qname) {
    --_depth;
    if (!stopped()) {
        WhitespaceFilter::endElement(uri, localName, qname);
    }
}

void XmlGuardFilter::characters(const XMLChar ch[], int start, int length) {
    if (!stopped() && (!_hasDocumentType || produce(lengthOf(length)))) {
        WhitespaceFilter::characters(ch, start, length);
    }
}

void XmlGuardFilter::ignorableWhitespace(const XMLChar ch[], int start, int length) {
    if (!stopped() && (!_hasDocumentType || produce(lengthOf(length)))) {
        WhitespaceFilter::ignorableWhitespace(ch, start, length);
    }
}

void XmlGuardFilter::processingInstruction(const XMLString& target, const XMLString& data) {
    if (!stopped()) {
        WhitespaceFilter::processingInstruction(target, data);
    }
}

void XmlGuardFilter::startPrefixMapping(const XMLString& prefix, const XMLString& uri) {
    if (!stopped()) {
        WhitespaceFilter::startPrefixMapping(prefix, uri);
    }
}

void XmlGuardFilter::endPrefixMapping(const XMLString& prefix) {
    if (!stopped()) {
        WhitespaceFilter::endPrefixMapping(prefix);
    }
}

void XmlGuardFilter::skippedEntity(const XMLString& name) {
    if (!stopped()) {
        WhitespaceFilter::skippedEntity(name);
    }
}

void XmlGuardFilter::notationDecl(const XMLString& name, const XMLString* publicId, const XMLString* systemId) {
    if (!stopped()) {
        WhitespaceFilter::notationDecl(name, publicId, systemId);
    }
}

void XmlGuardFilter::unparsedEntityDecl(const XMLString& name, const XMLString* publicId, const XMLString& systemId,
                                        const XMLString& notationName) {
    if (!stopped()) {
        WhitespaceFilter::unparsedEntityDecl(name, publicId, systemId, notationName);
    }
}

// ---- lexical events ----------------------------------------------------------------

void XmlGuardFilter::startDTD(const XMLString& name, const XMLString& publicId, const XMLString& systemId) {
    _hasDocumentType = true;
    if (!stopped()) {
        WhitespaceFilter::startDTD(name, publicId, systemId);
    }
}

void XmlGuardFilter::endDTD() {
    // Every declaration is known now and no element has been read yet: the
    // last moment at which no reference has been expanded.
    if (!stopped() && !_entities.empty()) {
        const std::string reason = _entities.check(_stop.document(), _stop.size());
        if (!reason.empty()) {
            refuse(reason + " (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)");
        }
    }
    if (!stopped()) {
        WhitespaceFilter::endDTD();
    }
}

void XmlGuardFilter::startEntity(const XMLString& name) {
    if (!stopped()) {
        WhitespaceFilter::startEntity(name);
    }
}

void XmlGuardFilter::endEntity(const XMLString& name) {
    if (!stopped()) {
        WhitespaceFilter::endEntity(name);
    }
}

void XmlGuardFilter::startCDATA() {
    if (!stopped()) {
        WhitespaceFilter::startCDATA();
    }
}

void XmlGuardFilter::endCDATA() {
    if (!stopped()) {
        WhitespaceFilter::endCDATA();
    }
}

void XmlGuardFilter::comment(const XMLChar ch[], int start, int length) {
    if (!stopped()) {
        WhitespaceFilter::comment(ch, start, length);
    }
}

// ---- declarations ----------------------------------------------------------------

void XmlGuardFilter::attributeDecl(const XMLString& eName, const XMLString& aName, const XMLString* valueDefault,
                                   const XMLString* value) {
    if (!stopped() && _declHandler != nullptr) {
        _declHandler->attributeDecl(eName, aName, valueDefault, value);
    }
}

void XmlGuardFilter::elementDecl(const XMLString& name, const XMLString& model) {
    if (!stopped() && _declHandler != nullptr) {
        _declHandler->elementDecl(name, model);
    }
}

void XmlGuardFilter::externalEntityDecl(const XMLString& name, const XMLString* publicId, const XMLString& systemId) {
    if (!stopped() && _declHandler != nullptr) {
        _declHandler->externalEntityDecl(name, publicId, systemId);
    }
}

void XmlGuardFilter::internalEntityDecl(const XMLString& name, const XMLString& value) {
    _entities.declare(name, value);
    if (!stopped() && _declHandler != nullptr) {
        _declHandler->internalEntityDecl(name, value);
    }
}

} // namespace ZefModelRepositoryService
