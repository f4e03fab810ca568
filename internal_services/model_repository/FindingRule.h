#ifndef ZEF_FINDING_RULE_H
#define ZEF_FINDING_RULE_H

namespace ZefModelRepositoryService {

/// How grave a finding is: an error (it makes the model invalid), a warning,
/// or a note (information a plug-in gives with its passing check).
enum class FindingSeverity { Error, Warning, Note };

/// "error", "warning" or "note".
const char* severityName(FindingSeverity severity);

/// The kind of element the subject argument of a finding text names. The
/// argument holds the element's identity key for every kind but Parameter,
/// StructMember, Member (one of those two) and Literal, whose keys are their
/// names alone and name them only within their owner.
enum class RuleSubject {
    None,
    Mom,
    Moc,
    Attribute,
    Action,
    Parameter,
    StructMember,
    Member,
    Enum,
    Literal,
    Ddt,
    Struct,
    Containment,
    AssociationEnd,
    Bidir,
    Unidir,
    /// The identity key of an attribute, parameter or struct member.
    TypedElement
};

/// One rule: a stable identifier for one finding text template, with the
/// severity it is reported at, the unit that reports it ("ModelParser",
/// "ModelRepository", or "plug-in" for the results of static validators)
/// and which argument of the text names the element it is about (1-based;
/// 0 when none does).
struct FindingRule {
    const char* id;
    FindingSeverity severity;
    const char* reporter;
    const char* messageTemplate;
    unsigned subjectArgument;
    RuleSubject subject;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_FINDING_RULE_H
