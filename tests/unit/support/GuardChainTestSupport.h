#ifndef ZEF_TEST_GUARD_CHAIN_TEST_SUPPORT_H
#define ZEF_TEST_GUARD_CHAIN_TEST_SUPPORT_H

// Reads a document through the real XML reader, the guard filter of the
// reading chain and the real DOM builder, the way the model document holder
// chains them, so that a filter's test sees what the builder gets.

#include <functional>
#include <memory>
#include <string>

#include <Poco/AutoPtr.h>
#include <Poco/DOM/DOMBuilder.h>
#include <Poco/DOM/Document.h>
#include <Poco/Exception.h>
#include <Poco/SAX/SAXParser.h>

#include "InputLimits.h"
#include "XmlGuardFilter.h"
#include "XmlParseStop.h"

namespace ZefTest {

/// The outcome of one read through a guard filter.
struct GuardedRead {
    Poco::AutoPtr<Poco::XML::Document> document;  ///< null when the read failed
    std::string refusal;                           ///< the stop's reason, empty when not refused
    std::string readerError;                       ///< the reader's own error text, if any
    std::string text;                              ///< the document text after the read
};

/// Makes the filter under test over the given reader and stop.
using GuardFactory = std::function<std::unique_ptr<ZefModelRepositoryService::XmlGuardFilter>(
    Poco::XML::XMLReader*, ZefModelRepositoryService::XmlParseStop&)>;

/// Reads `text` through the filter `makeFilter` makes; `afterRead`, when
/// given, sees the filter after the read, before it goes.
inline GuardedRead readGuarded(std::string text, const GuardFactory& makeFilter,
                               const std::function<void(ZefModelRepositoryService::XmlGuardFilter&)>& afterRead =
                                   nullptr) {
    GuardedRead result;
    Poco::XML::SAXParser reader;
    reader.setFeature(Poco::XML::XMLReader::FEATURE_NAMESPACES, true);
    reader.setFeature(Poco::XML::XMLReader::FEATURE_NAMESPACE_PREFIXES, true);
    ZefModelRepositoryService::XmlParseStop stop(&text[0], text.size());
    std::unique_ptr<ZefModelRepositoryService::XmlGuardFilter> filter = makeFilter(&reader, stop);
    Poco::XML::DOMBuilder builder(*filter);
    try {
        result.document = builder.parseMemoryNP(text.data(), text.size());
    } catch (const Poco::Exception& e) {
        result.readerError = e.displayText();
    }
    result.refusal = stop.reason();
    result.text = text;
    if (afterRead) {
        afterRead(*filter);
    }
    return result;
}

/// A guard filter with `limits` (and the default limits for the rest).
inline GuardFactory guardWith(ZefModelRepositoryService::InputLimits limits) {
    return [limits](Poco::XML::XMLReader* parent, ZefModelRepositoryService::XmlParseStop& stop) {
        return std::unique_ptr<ZefModelRepositoryService::XmlGuardFilter>(
            new ZefModelRepositoryService::XmlGuardFilter(parent, stop, limits));
    };
}

/// Empty elements named n<first> to n<last>, each a name of its own.
inline std::string numberedElements(int first, int last) {
    std::string text;
    for (int i = first; i <= last; ++i) {
        text += "<n" + std::to_string(i) + "/>";
    }
    return text;
}

/// `count` elements named `name` nested in one another.
inline std::string nestedElements(int count, const std::string& name = "e") {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "<" + name + ">";
    }
    for (int i = 0; i < count; ++i) {
        text += "</" + name + ">";
    }
    return text;
}

} // namespace ZefTest

#endif // ZEF_TEST_GUARD_CHAIN_TEST_SUPPORT_H
