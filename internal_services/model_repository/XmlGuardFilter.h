#ifndef ZEF_XML_GUARD_FILTER_H
#define ZEF_XML_GUARD_FILTER_H

#include <cstdint>
#include <string>

#include <Poco/SAX/DeclHandler.h>
#include <Poco/SAX/WhitespaceFilter.h>

#include "ElementTally.h"
#include "EntityExpansion.h"
#include "XmlParseStop.h"

namespace Poco {
namespace XML {
class Locator;
}
} // namespace Poco

namespace ZefModelRepositoryService {

class ElementPositions;
struct InputLimits;

/// The one filter between the XML reader and the DOM builder of a model
/// document. It drops white-space-only text between elements, as the
/// white-space filter it extends; it notes where each start tag begins when
/// given positions to fill; and it refuses the document, through the shared
/// XmlParseStop, in the same pass that builds the DOM, when:
/// - elements nest deeper than the depth limit (the DOM code recurses over
///   the tree, releasing it, searching it by tag, so a tree a few hundred
///   thousand levels deep would overflow the stack long after it was read);
/// - entities would expand beyond the expansion limit: once the document
///   type declaration ends (before any reference in the elements is
///   expanded), when a declared entity or the references of the document
///   add more than the limit (see EntityExpansion); and while the elements
///   are read, when they produce more text (character data and attribute
///   values) than the document could hold without entities, three bytes per
///   input byte (the most any encoding grows to in UTF-8), plus the limit,
///   which also catches an attribute default that copies an entity into
///   every element (text is counted only once the document has a document
///   type: without one, nothing declares an entity or a default);
/// - the document uses more distinct element and attribute names than the
///   name pool of a DOM document made without one holds. The pool throws
///   from inside the DOM builder then; this filter catches that before it
///   reaches the XML reader, which, left by an exception, never frees its
///   parser (see XmlParseStop), and refuses the document instead, so that
///   it fails like any malformed one.
///
/// Given a tally, it also counts the elements of one name as they reach the
/// builder (see ElementTally).
///
/// The checks share one filter so that the events of a large document pass
/// one layer, as they do in a plain DOM parser. Every event is passed on
/// unchanged while the document is not refused, and none after, so the DOM
/// never grows past a limit. Besides the content events the filter carries
/// the lexical events (comments, CDATA, the document type) and the
/// declaration events.
class XmlGuardFilter : public Poco::XML::WhitespaceFilter, public Poco::XML::DeclHandler {
public:
    /// `parent`: the XML reader; `stop`: the refusal of the document it
    /// reads; `limits`: the nesting depth and entity expansion limits;
    /// `positions`, when not null, receives the position of every start tag
    /// in the order the builder creates the elements, and must outlive the
    /// parse.
    XmlGuardFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, const InputLimits& limits,
                   ElementPositions* positions = nullptr);

    /// Counts into `tally` every element of its name that reaches the
    /// builder; `tally` must outlive the parse.
    void setTally(ElementTally* tally) { _tally = tally; }

    // XMLReader: the declaration handler of the builder is taken by this
    // filter, which passes its events on.
    void setProperty(const Poco::XML::XMLString& propertyId, const Poco::XML::XMLString& value) override;
    void setProperty(const Poco::XML::XMLString& propertyId, void* value) override;
    void* getProperty(const Poco::XML::XMLString& propertyId) const override;

    // ContentHandler
    void setDocumentLocator(const Poco::XML::Locator* locator) override;
    void startDocument() override;
    void endDocument() override;
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

private:
    /// Whether the element about to start, with these attributes, stays
    /// within the depth and expansion limits; refuses the document when not.
    bool admitElement(const Poco::XML::Attributes& attributes);
    /// Counts text the document produces; false, and the document refused,
    /// past the output limit.
    bool produce(std::uint64_t bytes);
    /// The refusal text of an entity check, with the limit and its variable.
    std::string expansionReason(const std::string& what) const;
    /// Notes where the start tag being reported begins.
    void notePosition();

    XmlParseStop& _stop;
    Poco::XML::DeclHandler* _declHandler = nullptr;
    const Poco::XML::Locator* _locator = nullptr;
    ElementPositions* _positions;
    ElementTally* _tally = nullptr;

    std::uint64_t _maxDepth;
    std::uint64_t _depth = 0;

    // Only a document type declares entities and attribute defaults: without
    // one the text a document produces cannot pass the output limit, and
    // is not counted.
    bool _hasDocumentType = false;
    std::uint64_t _expansionLimit;
    std::uint64_t _outputLimit;
    std::uint64_t _produced = 0;
    EntityExpansion _entities;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_XML_GUARD_FILTER_H
