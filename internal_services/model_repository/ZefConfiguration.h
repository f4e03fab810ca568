#ifndef ZEF_CONFIGURATION_H
#define ZEF_CONFIGURATION_H

#include <string>

#include <Poco/AutoPtr.h>
#include <Poco/DOM/Document.h>
#include <Poco/DOM/NodeList.h>

#include "ElementPositions.h"
#include "ElementTally.h"

namespace Zef {

/// Holds one parsed XML document of a model file.
class ZefConfiguration {
public:
    ZefConfiguration() = default;
    ~ZefConfiguration() = default;

    ZefConfiguration(const ZefConfiguration&) = delete;
    ZefConfiguration& operator=(const ZefConfiguration&) = delete;

    /// Parses `fileName` into a DOM document with white-space-only text
    /// filtered out, replacing (and releasing) any document held before.
    /// When no file of that name exists the argument itself is parsed as XML
    /// text, so a document can also be handed over in a string.
    /// The file is read into memory and parsed from there; the text goes
    /// through the guard filter of the reading chain (nesting depth, entity
    /// expansion, DOM name pool) in the same pass that builds the DOM.
    /// Throws ZefException with "<fileName> is not a file" or "<fileName> is
    /// not readable", with the reader's own text for malformed XML, and with
    /// "<fileName> refused: <reason>" (also logged as an error) for a file
    /// larger than the size limit or a document past another limit (see
    /// InputLimits).
    void load(const std::string& fileName);

    /// The elements of the held document with the given tag name (null when
    /// no document is held).
    Poco::AutoPtr<Poco::XML::NodeList> getElementsByTagName(const std::string& name) const;

    /// Has every later load() count the elements named `name` while it
    /// reads the document (see talliedCount, firstTallied).
    void tally(const std::string& name) { _tally.name = name; }
    /// The number of elements of the tallied name in the held document, as
    /// getElementsByTagName would list them.
    unsigned long talliedCount() const { return _tally.count; }
    /// The first element of the tallied name in document order, null when
    /// there is none. Found without a walk when it is the document element.
    Poco::XML::Node* firstTallied() const;

    /// The held document, or null.
    Poco::XML::Document* getDocument() { return _document.get(); }
    const Poco::XML::Document* getDocument() const { return _document.get(); }

    /// Where each element of the held document begins in its text (none
    /// when the document was loaded while positions were not noted).
    const ZefModelRepositoryService::ElementPositions& positions() const { return _positions; }

    /// Whether load() notes where each element begins; on unless turned
    /// off. Noting costs a few percent of the time a document takes to
    /// load, so a run that reports no places can do without it.
    static void setNotePositions(bool note) { _notePositions = note; }
    static bool notesPositions() { return _notePositions; }

private:
    Poco::AutoPtr<Poco::XML::Document> _document;
    ZefModelRepositoryService::ElementPositions _positions;
    ZefModelRepositoryService::ElementTally _tally;
    static bool _notePositions;
};

} // namespace Zef

#endif // ZEF_CONFIGURATION_H
