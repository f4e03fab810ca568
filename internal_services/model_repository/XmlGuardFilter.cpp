#include "XmlGuardFilter.h"

#include <Poco/SAX/XMLReader.h>

namespace ZefModelRepositoryService {

using Poco::XML::XMLChar;
using Poco::XML::XMLReader;
using Poco::XML::XMLString;

XmlGuardFilter::XmlGuardFilter(XMLReader* parent, XmlParseStop& stop)
    : Poco::XML::XMLFilterImpl(parent), _stop(stop) {}

void XmlGuardFilter::setupParse() {
    XMLFilterImpl::setupParse();
    parent()->setProperty(XMLReader::PROPERTY_LEXICAL_HANDLER, static_cast<Poco::XML::LexicalHandler*>(this));
    parent()->setProperty(XMLReader::PROPERTY_DECLARATION_HANDLER, static_cast<Poco::XML::DeclHandler*>(this));
}

void XmlGuardFilter::setProperty(const XMLString& propertyId, const XMLString& value) {
    XMLFilterImpl::setProperty(propertyId, value);
}

void XmlGuardFilter::setProperty(const XMLString& propertyId, void* value) {
    if (propertyId == XMLReader::PROPERTY_LEXICAL_HANDLER) {
        _lexicalHandler = static_cast<Poco::XML::LexicalHandler*>(value);
    } else if (propertyId == XMLReader::PROPERTY_DECLARATION_HANDLER) {
        _declHandler = static_cast<Poco::XML::DeclHandler*>(value);
    } else {
        XMLFilterImpl::setProperty(propertyId, value);
    }
}

void* XmlGuardFilter::getProperty(const XMLString& propertyId) const {
    if (propertyId == XMLReader::PROPERTY_LEXICAL_HANDLER) {
        return _lexicalHandler;
    }
    if (propertyId == XMLReader::PROPERTY_DECLARATION_HANDLER) {
        return _declHandler;
    }
    return XMLFilterImpl::getProperty(propertyId);
}

// ---- content ----------------------------------------------------------------------

void XmlGuardFilter::startElement(const XMLString& uri, const XMLString& localName, const XMLString& qname,
                                  const Poco::XML::Attributes& attributes) {
    if (!stopped()) {
        XMLFilterImpl::startElement(uri, localName, qname, attributes);
    }
}

void XmlGuardFilter::endElement(const XMLString& uri, const XMLString& localName, const XMLString& qname) {
    if (!stopped()) {
        XMLFilterImpl::endElement(uri, localName, qname);
    }
}

void XmlGuardFilter::characters(const XMLChar ch[], int start, int length) {
    if (!stopped()) {
        XMLFilterImpl::characters(ch, start, length);
    }
}

void XmlGuardFilter::ignorableWhitespace(const XMLChar ch[], int start, int length) {
    if (!stopped()) {
        XMLFilterImpl::ignorableWhitespace(ch, start, length);
    }
}

void XmlGuardFilter::processingInstruction(const XMLString& target, const XMLString& data) {
    if (!stopped()) {
        XMLFilterImpl::processingInstruction(target, data);
    }
}

void XmlGuardFilter::startPrefixMapping(const XMLString& prefix, const XMLString& uri) {
    if (!stopped()) {
        XMLFilterImpl::startPrefixMapping(prefix, uri);
    }
}

void XmlGuardFilter::endPrefixMapping(const XMLString& prefix) {
    if (!stopped()) {
        XMLFilterImpl::endPrefixMapping(prefix);
    }
}

void XmlGuardFilter::skippedEntity(const XMLString& name) {
    if (!stopped()) {
        XMLFilterImpl::skippedEntity(name);
    }
}

void XmlGuardFilter::endDocument() {
    if (!stopped()) {
        XMLFilterImpl::endDocument();
    }
}

void XmlGuardFilter::notationDecl(const XMLString& name, const XMLString* publicId, const XMLString* systemId) {
    if (!stopped()) {
        XMLFilterImpl::notationDecl(name, publicId, systemId);
    }
}

void XmlGuardFilter::unparsedEntityDecl(const XMLString& name, const XMLString* publicId, const XMLString& systemId,
                                        const XMLString& notationName) {
    if (!stopped()) {
        XMLFilterImpl::unparsedEntityDecl(name, publicId, systemId, notationName);
    }
}

// ---- lexical events ---------------------------------------------------------------

void XmlGuardFilter::startDTD(const XMLString& name, const XMLString& publicId, const XMLString& systemId) {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->startDTD(name, publicId, systemId);
    }
}

void XmlGuardFilter::endDTD() {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->endDTD();
    }
}

void XmlGuardFilter::startEntity(const XMLString& name) {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->startEntity(name);
    }
}

void XmlGuardFilter::endEntity(const XMLString& name) {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->endEntity(name);
    }
}

void XmlGuardFilter::startCDATA() {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->startCDATA();
    }
}

void XmlGuardFilter::endCDATA() {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->endCDATA();
    }
}

void XmlGuardFilter::comment(const XMLChar ch[], int start, int length) {
    if (!stopped() && _lexicalHandler != nullptr) {
        _lexicalHandler->comment(ch, start, length);
    }
}

// ---- declarations -----------------------------------------------------------------

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
    if (!stopped() && _declHandler != nullptr) {
        _declHandler->internalEntityDecl(name, value);
    }
}

} // namespace ZefModelRepositoryService
