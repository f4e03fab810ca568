#ifndef ZEF_FINDING_RULES_H
#define ZEF_FINDING_RULES_H

#include <string>
#include <vector>

#include "FindingRule.h"

namespace ZefModelRepositoryService {

/// The catalog of finding rules: every text template the parser and the
/// repository report a finding with, each under a stable identifier, plus
/// the two rules of static validator results. Identifiers never change once
/// published; a new text gets a new rule.
///
/// The catalog itself is in FindingRulesTable.cpp.
class FindingRules {
public:
    /// Every rule, in catalog order (by reporter and element family).
    static const std::vector<FindingRule>& all();
    /// The rule of that identifier, or null.
    static const FindingRule* byId(const std::string& id);
    /// The rule whose template is exactly `format`, or null (also for a
    /// format that only passes on a text made elsewhere, "%s").
    static const FindingRule* byFormat(const char* format);
    /// The rule whose template `message` can be formatted from; when several
    /// can, the one with the most fixed characters. Null when none can.
    static const FindingRule* byText(const std::string& message);
    /// The arguments `message` was formatted with from `rule`'s template;
    /// false when the message does not match the template.
    static bool arguments(const FindingRule& rule, const std::string& message, std::vector<std::string>& out);

    /// The identifiers of the results of static validator plug-ins.
    static const char* const pluginFailedId;
    static const char* const pluginInformationId;

private:
    struct Catalog;
    // The catalog with each template taken apart once, built on first use.
    static const Catalog& catalog();
    // The rules, in FindingRulesTable.cpp.
    static std::vector<FindingRule> table();
};

} // namespace ZefModelRepositoryService

#endif // ZEF_FINDING_RULES_H
