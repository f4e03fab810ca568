#ifndef ZEF_FINDING_H
#define ZEF_FINDING_H

#include <string>

#include "FindingRule.h"
#include "SourceLocation.h"

namespace ZefModelRepositoryService {

/// One finding of the message list, described for machine-readable reports:
/// what kept beside its text, never inside it. The repository keeps one per
/// message, in the same order.
struct Finding {
    FindingSeverity severity = FindingSeverity::Note;
    /// The unit that reported it ("ModelParser", "ModelRepository").
    std::string reporter;
    /// The message as formatted, without the severity and reporter words
    /// the message list puts in front of it.
    std::string message;
    /// The rule of its text template; null when no rule knows the text.
    const FindingRule* rule = nullptr;
    /// The element it is about: the element being read for a finding of the
    /// parser, else the element of the record it names.
    SourceLocation location;
    /// The identity key of that element, or empty when there is none.
    std::string key;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_FINDING_H
