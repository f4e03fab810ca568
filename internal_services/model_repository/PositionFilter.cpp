#include "PositionFilter.h"

#include <Poco/SAX/Locator.h>

#include "ElementPositions.h"

namespace ZefModelRepositoryService {

PositionFilter::PositionFilter(Poco::XML::XMLReader* parent, ElementPositions& positions)
    : Poco::XML::WhitespaceFilter(parent), _positions(positions) {}

void PositionFilter::setDocumentLocator(const Poco::XML::Locator* locator) {
    _locator = locator;
    Poco::XML::WhitespaceFilter::setDocumentLocator(locator);
}

void PositionFilter::startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                                  const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) {
    if (_locator != nullptr) {
        // The reader counts lines from 1 but columns from 0; a report counts
        // both from 1, as editors do.
        _positions.noteStartTag(static_cast<uint32_t>(_locator->getLineNumber()),
                                static_cast<uint32_t>(_locator->getColumnNumber()) + 1);
    } else {
        _positions.noteStartTag(0, 0);
    }
    Poco::XML::WhitespaceFilter::startElement(uri, localName, qname, attributes);
}

} // namespace ZefModelRepositoryService
