#include "RuleList.h"

#include <string>

#include "FindingRules.h"

using ZefModelRepositoryService::FindingRule;
using ZefModelRepositoryService::FindingRules;

void printRuleList(std::FILE* out) {
    // Built first and written in one piece, as the usage text is.
    std::string text;
    for (const FindingRule& rule : FindingRules::all()) {
        text += std::string(rule.id) + "\t" + ZefModelRepositoryService::severityName(rule.severity) + "\t" +
                rule.messageTemplate + "\n";
    }
    std::fputs(text.c_str(), out);
}
