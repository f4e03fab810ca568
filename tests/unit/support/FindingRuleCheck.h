#ifndef ZEF_TEST_FINDING_RULE_CHECK_H
#define ZEF_TEST_FINDING_RULE_CHECK_H

// Every finding a test makes the parser or the repository report must be
// known to the rule catalog: its text made from exactly the template of one
// rule, of the severity and reporter the rule names. The fixtures check it
// at the end of every test, so each message a test asserts is also checked
// against the catalog.

#include <gtest/gtest.h>

#include <string>

#include "FindingRules.h"
#include "ModelRepository.h"

namespace ZefTest {

inline void expectEveryFindingHasItsRule(const ZefModelRepositoryService::ModelRepository& repository) {
    for (const ZefModelRepositoryService::Finding& finding : repository.getFindings()) {
        if (finding.rule == nullptr) {
            ADD_FAILURE() << "no rule for the finding \"" << finding.message << "\"";
            continue;
        }
        std::vector<std::string> arguments;
        EXPECT_TRUE(ZefModelRepositoryService::FindingRules::arguments(*finding.rule, finding.message, arguments))
            << finding.rule->id << " does not match \"" << finding.message << "\"";
        EXPECT_EQ(finding.rule->severity, finding.severity) << finding.rule->id << ": " << finding.message;
        EXPECT_EQ(std::string(finding.rule->reporter), finding.reporter) << finding.rule->id << ": " << finding.message;
    }
    EXPECT_EQ(repository.getMessages().size(), repository.getFindings().size());
}

} // namespace ZefTest

#endif // ZEF_TEST_FINDING_RULE_CHECK_H
