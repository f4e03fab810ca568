#include "FindingRules.h"

#include <unordered_map>

#include "MessageTemplate.h"

namespace ZefModelRepositoryService {

/// The rules with each template taken apart once, and the indexes that
/// find a rule by identifier and by exact template.
struct FindingRules::Catalog {
    std::vector<FindingRule> rules;
    std::vector<MessageTemplate> templates;
    std::unordered_map<std::string, size_t> byId;
    std::unordered_map<std::string, size_t> byTemplate;
};

const char* severityName(FindingSeverity severity) {
    switch (severity) {
    case FindingSeverity::Error:
        return "error";
    case FindingSeverity::Warning:
        return "warning";
    case FindingSeverity::Note:
        return "note";
    }
    return "note";
}

const char* const FindingRules::pluginFailedId = "plugin-validation-failed";
const char* const FindingRules::pluginInformationId = "plugin-validation-information";

const FindingRules::Catalog& FindingRules::catalog() {
    // Built once, also when first used by several threads at a time.
    static const Catalog instance = []() {
        Catalog built;
        built.rules = table();
        built.templates.reserve(built.rules.size());
        for (size_t index = 0; index < built.rules.size(); ++index) {
            const FindingRule& rule = built.rules[index];
            built.templates.emplace_back(rule.messageTemplate);
            built.byId.emplace(rule.id, index);
            built.byTemplate.emplace(rule.messageTemplate, index);
        }
        return built;
    }();
    return instance;
}

const std::vector<FindingRule>& FindingRules::all() { return catalog().rules; }

const FindingRule* FindingRules::byId(const std::string& id) {
    const Catalog& rules = catalog();
    const auto found = rules.byId.find(id);
    return found == rules.byId.end() ? nullptr : &rules.rules[found->second];
}

const FindingRule* FindingRules::byFormat(const char* format) {
    if (format == nullptr) {
        return nullptr;
    }
    const Catalog& rules = catalog();
    const auto found = rules.byTemplate.find(format);
    return found == rules.byTemplate.end() ? nullptr : &rules.rules[found->second];
}

const FindingRule* FindingRules::byText(const std::string& message) {
    const Catalog& rules = catalog();
    const FindingRule* best = nullptr;
    size_t bestFixed = 0;
    for (size_t index = 0; index < rules.rules.size(); ++index) {
        const MessageTemplate& candidate = rules.templates[index];
        const std::string& prefix = candidate.prefix();
        if (message.compare(0, prefix.size(), prefix) != 0) {
            continue;
        }
        if ((best == nullptr || candidate.fixedLength() > bestFixed) && candidate.match(message)) {
            best = &rules.rules[index];
            bestFixed = candidate.fixedLength();
        }
    }
    return best;
}

bool FindingRules::arguments(const FindingRule& rule, const std::string& message, std::vector<std::string>& out) {
    const Catalog& rules = catalog();
    const auto found = rules.byId.find(rule.id);
    if (found == rules.byId.end()) {
        return false;
    }
    return rules.templates[found->second].match(message, &out);
}

} // namespace ZefModelRepositoryService
