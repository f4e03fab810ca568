#ifndef ZEF_RULE_LIST_H
#define ZEF_RULE_LIST_H

#include <cstdio>

/// Prints every finding rule, one line each: identifier, severity and
/// message template, separated by tabs, in the catalog's order.
void printRuleList(std::FILE* out);

#endif // ZEF_RULE_LIST_H
