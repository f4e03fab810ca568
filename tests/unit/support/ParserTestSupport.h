#ifndef ZEF_TEST_PARSER_TEST_SUPPORT_H
#define ZEF_TEST_PARSER_TEST_SUPPORT_H

// Shared fixture of the model parser tests: a fresh standalone repository
// and a parser on it for every test, documents given inline as XML text and
// read through the real DOM parser (white-space filter on), the log written
// at trace level into a file of the test's own, and a message ledger: every
// finding the repository recorded must be asserted by the test, with its
// exact text, or the test fails in TearDown.

#include <gtest/gtest.h>

#include <list>
#include <map>
#include <string>
#include <vector>

#include <Poco/DOM/Element.h>
#include <Poco/DOM/Node.h>

#include "FindingRuleCheck.h"
#include "LogCapture.h"
#include "LoggingWrapperTestAccess.h"
#include "ModelParser.h"
#include "ModelRepository.h"
#include "MomWrapper.h"
#include "ZefConfiguration.h"

namespace ZefTest {

class ParserTest : public ::testing::Test {
protected:
    ParserTest() : parser(repository) {}

    void SetUp() override {
        repository.setStandalone(true);
        parser.setStandalone(true);
    }

    void TearDown() override {
        const std::vector<std::string> left = unassertedMessages();
        for (const std::string& message : left) {
            ADD_FAILURE() << "message not asserted by the test: \"" << message << "\"";
        }
        if (findingsHaveRules) {
            expectEveryFindingHasItsRule(repository);
        }
    }

    // ---- documents ---------------------------------------------------------

    /// Parses a whole document given as text; the parser's result code.
    int parseXml(const std::string& xml) { return parser.parse(xml); }

    /// A document of one "models" element holding one "mim" with the given
    /// attributes and content.
    static std::string mimDocument(const std::string& content,
                                   const std::string& mimAttributes = "name=\"M\" version=\"1.0\"") {
        return "<models><mim " + mimAttributes + ">" + content + "</mim></models>";
    }

    /// Parses mimDocument(content, mimAttributes) and expects result 0.
    void parseMim(const std::string& content, const std::string& mimAttributes = "name=\"M\" version=\"1.0\"") {
        EXPECT_EQ(0, parseXml(mimDocument(content, mimAttributes)));
    }

    /// Loads a document given as text (without parsing it as a model) and
    /// returns its document element, to hand single elements to a handler.
    /// The element lives until the next call or the end of the test.
    Poco::XML::Element* loadElement(const std::string& xml) {
        _document.load(xml);
        return _document.getDocument()->documentElement();
    }

    /// The first element child of `node` with the given name, or null.
    static Poco::XML::Element* childElement(Poco::XML::Node* node, const std::string& name) {
        for (Poco::XML::Node* child = node->firstChild(); child != nullptr; child = child->nextSibling()) {
            if (child->nodeType() == Poco::XML::Node::ELEMENT_NODE && child->nodeName() == name) {
                return static_cast<Poco::XML::Element*>(child);
            }
        }
        return nullptr;
    }

    // ---- repository content ------------------------------------------------

    /// The registered MOM of that identity key ("name~version"), or null.
    ZefModelRepositoryService::MomWrapper* findMom(const std::string& key) {
        for (ZefModelRepositoryService::MomWrapper* mom : repository.getMomList()) {
            if (mom->getId() == key) {
                return mom;
            }
        }
        return nullptr;
    }

    /// The registered class of that identity key, or null.
    ZefModelRepositoryService::MocWrapper* findMoc(const std::string& key) {
        const auto found = repository.getMocMap().find(key);
        return found == repository.getMocMap().end() ? nullptr : found->second;
    }

    // ---- findings ----------------------------------------------------------

    /// Marks the first not yet asserted finding equal to `text` as asserted;
    /// a failure when there is none.
    void expectMessage(const std::string& text) {
        const std::list<std::string>& messages = repository.getMessages();
        size_t index = 0;
        for (const std::string& message : messages) {
            if (message == text && !_asserted[index]) {
                _asserted[index] = true;
                return;
            }
            ++index;
        }
        ADD_FAILURE() << "expected message not found: \"" << text << "\"";
    }

    /// expectMessage of "WARNING, ModelParser: " + text.
    void expectParserWarning(const std::string& text) { expectMessage("WARNING, ModelParser: " + text); }
    /// expectMessage of "ERROR, ModelParser: " + text.
    void expectParserError(const std::string& text) { expectMessage("ERROR, ModelParser: " + text); }
    /// expectMessage of "ERROR, ModelRepository: " + text.
    void expectRepositoryError(const std::string& text) { expectMessage("ERROR, ModelRepository: " + text); }

    /// Every finding not asserted yet, in the order recorded; they all count
    /// as asserted afterwards (compare the result with the expected list).
    std::vector<std::string> takeMessages() {
        std::vector<std::string> result = unassertedMessages();
        for (size_t index = 0; index < repository.getMessages().size(); ++index) {
            _asserted[index] = true;
        }
        return result;
    }

    /// Every finding not asserted yet, in the order recorded.
    std::vector<std::string> unassertedMessages() {
        std::vector<std::string> result;
        size_t index = 0;
        for (const std::string& message : repository.getMessages()) {
            if (!_asserted[index]) {
                result.push_back(message);
            }
            ++index;
        }
        return result;
    }

    // ---- log ---------------------------------------------------------------

    /// Number of log lines whose message is exactly `message` (the line ends
    /// with it, after the blank that ends the padded function name).
    int logCount(const std::string& message) {
        Zef::LoggingWrapperTestAccess::flush();
        const std::string tail = " " + message;
        int count = 0;
        for (const std::string& line : _log.lines()) {
            if (line.size() >= tail.size() && line.compare(line.size() - tail.size(), tail.size(), tail) == 0) {
                ++count;
            }
        }
        return count;
    }

    /// True when some log line (trace or log record) ends with `message`.
    bool logged(const std::string& message) { return logCount(message) > 0; }

    /// The error messages (level word "ER") of the log so far.
    std::vector<std::string> loggedErrors() {
        Zef::LoggingWrapperTestAccess::flush();
        return _log.errors();
    }

    /// The warning messages (level word "WA") of the log so far.
    std::vector<std::string> loggedWarnings() {
        Zef::LoggingWrapperTestAccess::flush();
        return _log.messages("WA");
    }

    /// Cleared by a test that reports made-up texts of no rule.
    bool findingsHaveRules = true;

    // Declared first: the logger points at the test's file before the
    // repository and the parser write anything.
    LogCapture _log;
    ZefModelRepositoryService::ModelRepository repository;
    ZefModelRepositoryService::ModelParser parser;

private:
    Zef::ZefConfiguration _document;
    std::map<size_t, bool> _asserted;
};

} // namespace ZefTest

#endif // ZEF_TEST_PARSER_TEST_SUPPORT_H
