#ifndef ZEF_XML_GUARD_FILTER_H
#define ZEF_XML_GUARD_FILTER_H

#include <Poco/SAX/DeclHandler.h>
#include <Poco/SAX/LexicalHandler.h>
#include <Poco/SAX/XMLFilterImpl.h>

#include "XmlParseStop.h"

namespace ZefModelRepositoryService {

/// Base of the filters that guard the reading of a model document: each
/// sits in the SAX chain between the XML reader and the DOM builder, looks
/// at the events it needs, and refuses the document through the shared
/// XmlParseStop when a limit is passed.
///
/// This base passes every event on unchanged while the document is not
/// refused, and none after, so the DOM never grows past a limit whichever
/// filter refused. Besides the content events it carries the lexical events
/// (comments, CDATA, the document type) and the declaration events, which
/// a plain filter leaves to the reader and the handler behind it. A derived
/// filter overrides the events it inspects and calls this base to pass them
/// on.
class XmlGuardFilter : public Poco::XML::XMLFilterImpl,
                       public Poco::XML::LexicalHandler,
                       public Poco::XML::DeclHandler {
public:
    /// `parent`: the reader or filter before this one; `stop`: the refusal
    /// shared by the chain.
    XmlGuardFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop);

    // XMLReader: the lexical and declaration handlers of the next filter are
    // taken by this one, which passes their events on.
    void setProperty(const Poco::XML::XMLString& propertyId, const Poco::XML::XMLString& value) override;
    void setProperty(const Poco::XML::XMLString& propertyId, void* value) override;
    void* getProperty(const Poco::XML::XMLString& propertyId) const override;

    // ContentHandler
    void startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                      const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) override;
    void endElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                    const Poco::XML::XMLString& qname) override;
    void characters(const Poco::XML::XMLChar ch[], int start, int length) override;
    void ignorableWhitespace(const Poco::XML::XMLChar ch[], int start, int length) override;
    void processingInstruction(const Poco::XML::XMLString& target, const Poco::XML::XMLString& data) override;
    void startPrefixMapping(const Poco::XML::XMLString& prefix, const Poco::XML::XMLString& uri) override;
    void endPrefixMapping(const Poco::XML::XMLString& prefix) override;
    void skippedEntity(const Poco::XML::XMLString& name) override;
    void endDocument() override;

    // DTDHandler
    void notationDecl(const Poco::XML::XMLString& name, const Poco::XML::XMLString* publicId,
                      const Poco::XML::XMLString* systemId) override;
    void unparsedEntityDecl(const Poco::XML::XMLString& name, const Poco::XML::XMLString* publicId,
                            const Poco::XML::XMLString& systemId, const Poco::XML::XMLString& notationName) override;

    // LexicalHandler
    void startDTD(const Poco::XML::XMLString& name, const Poco::XML::XMLString& publicId,
                  const Poco::XML::XMLString& systemId) override;
    void endDTD() override;
    void startEntity(const Poco::XML::XMLString& name) override;
    void endEntity(const Poco::XML::XMLString& name) override;
    void startCDATA() override;
    void endCDATA() override;
    void comment(const Poco::XML::XMLChar ch[], int start, int length) override;

    // DeclHandler
    void attributeDecl(const Poco::XML::XMLString& eName, const Poco::XML::XMLString& aName,
                       const Poco::XML::XMLString* valueDefault, const Poco::XML::XMLString* value) override;
    void elementDecl(const Poco::XML::XMLString& name, const Poco::XML::XMLString& model) override;
    void externalEntityDecl(const Poco::XML::XMLString& name, const Poco::XML::XMLString* publicId,
                            const Poco::XML::XMLString& systemId) override;
    void internalEntityDecl(const Poco::XML::XMLString& name, const Poco::XML::XMLString& value) override;

protected:
    void setupParse() override;

    /// Whether the document has been refused (then no event is passed on).
    bool stopped() const { return _stop.stopped(); }
    /// Refuses the document for `reason` (see XmlParseStop).
    void refuse(const std::string& reason) { _stop.stop(reason); }
    /// The shared refusal, for the document text it holds.
    const XmlParseStop& parseStop() const { return _stop; }

private:
    XmlParseStop& _stop;
    Poco::XML::LexicalHandler* _lexicalHandler = nullptr;
    Poco::XML::DeclHandler* _declHandler = nullptr;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_XML_GUARD_FILTER_H
