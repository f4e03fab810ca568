#ifndef ZEF_TEST_COMPILE_TEST_SUPPORT_H
#define ZEF_TEST_COMPILE_TEST_SUPPORT_H

// Shared fixture of the compilation tests: a fresh standalone repository for
// every test, built record by record (no parser), the log written at trace
// level into a file of the test's own, and a message ledger: every finding
// the repository recorded must be taken by the test, with its exact text,
// or the test fails in TearDown. Interface objects that compilation
// publishes (the substitutes of passphrase types) are dropped at the end
// of each test, so that handles restart at 3017.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "FindingRuleCheck.h"
#include "If2Manager.h"
#include "LogCapture.h"
#include "LoggingWrapperTestAccess.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "ModelRepository.h"
#include "MomWrapper.h"
#include "ParameterWrapper.h"
#include "StructMemberWrapper.h"
#include "StructWrapper.h"
#include "UniDirAssociationWrapper.h"

namespace ZefTest {

/// A reference by name as the parser records it: target name, MOM name,
/// MOM version (empty parts are not set).
struct Ref {
    Ref(std::string refName = std::string(), std::string refMom = std::string(),
        std::string refVersion = std::string())
        : name(std::move(refName)), mom(std::move(refMom)), version(std::move(refVersion)) {}

    std::string name;
    std::string mom;
    std::string version;
};

class CompileTest : public ::testing::Test {
protected:
    using MomWrapper = ZefModelRepositoryService::MomWrapper;
    using MocWrapper = ZefModelRepositoryService::MocWrapper;
    using AttrWrapper = ZefModelRepositoryService::AttrWrapper;
    using MoActionWrapper = ZefModelRepositoryService::MoActionWrapper;
    using ParameterWrapper = ZefModelRepositoryService::ParameterWrapper;
    using EnumWrapper = ZefModelRepositoryService::EnumWrapper;
    using DdtWrapper = ZefModelRepositoryService::DdtWrapper;
    using StructWrapper = ZefModelRepositoryService::StructWrapper;
    using StructMemberWrapper = ZefModelRepositoryService::StructMemberWrapper;
    using ContWrapper = ZefModelRepositoryService::ContWrapper;
    using AssociationEndWrapper = ZefModelRepositoryService::AssociationEndWrapper;
    using BiDirAssociationWrapper = ZefModelRepositoryService::BiDirAssociationWrapper;
    using UniDirAssociationWrapper = ZefModelRepositoryService::UniDirAssociationWrapper;
    using RefId = ZefModelRepositoryService::RefId;

    void SetUp() override { repository.setStandalone(true); }

    void TearDown() override {
        for (const std::string& message : takeMessages()) {
            ADD_FAILURE() << "message not taken by the test: \"" << message << "\"";
        }
        expectEveryFindingHasItsRule(repository);
        ZefModelRepositoryService::If2Manager::instance().cleanup();
    }

    // ---- records -----------------------------------------------------------
    // Each builder files the record in the repository (or in its container)
    // and expects it to be accepted.

    MomWrapper* addMom(const std::string& name, const std::string& version = "1.0") {
        MomWrapper* mom = new MomWrapper();
        mom->setName(name);
        mom->setVersion(version);
        EXPECT_EQ(ZefOk, repository.addMom(mom));
        return mom;
    }

    /// A MOM the repository does not know (its classes refer to it); it
    /// lives until the repository is gone.
    MomWrapper* looseMom(const std::string& name, const std::string& version = "1.0") {
        _looseMoms.emplace_back(new MomWrapper());
        _looseMoms.back()->setName(name);
        _looseMoms.back()->setVersion(version);
        return _looseMoms.back().get();
    }

    MocWrapper* addMoc(MomWrapper* mom, const std::string& name) {
        MocWrapper* moc = new MocWrapper();
        moc->setName(name);
        moc->setMom(&mom->getStruct());
        EXPECT_EQ(ZefOk, repository.addMoc(moc));
        return moc;
    }

    MocWrapper* addRootMoc(MomWrapper* mom, const std::string& name) {
        MocWrapper* moc = addMoc(mom, name);
        moc->setIsRoot(true);
        return moc;
    }

    static void setRef(RefId& element, const Ref& ref) {
        element.setRefName(ref.name);
        element.setRefMomName(ref.mom);
        element.setRefMomVersion(ref.version);
    }

    AttrWrapper* addAttr(MocWrapper* moc, const std::string& name, ZefOamSpiMrType_3 type, const Ref& ref = Ref()) {
        AttrWrapper* attr = new AttrWrapper();
        attr->setName(name);
        attr->setMoc(&moc->getStruct());
        attr->setType(type);
        setRef(*attr, ref);
        EXPECT_EQ(ZefOk, moc->addAttr(attr));
        return attr;
    }

    MoActionWrapper* addAction(MocWrapper* moc, const std::string& name, ZefOamSpiMrType_3 type,
                               const Ref& ref = Ref()) {
        MoActionWrapper* action = new MoActionWrapper();
        action->setName(name);
        action->setMoc(&moc->getStruct());
        action->setType(type);
        setRef(*action, ref);
        EXPECT_EQ(ZefOk, moc->addMoAction(action));
        return action;
    }

    ParameterWrapper* addParameter(MoActionWrapper* action, const std::string& name, ZefOamSpiMrType_3 type,
                                   const Ref& ref = Ref()) {
        ParameterWrapper* parameter = new ParameterWrapper();
        parameter->setName(name);
        parameter->setMoAction(action);
        parameter->setType(type);
        setRef(*parameter, ref);
        EXPECT_EQ(ZefOk, action->addParameter(parameter));
        return parameter;
    }

    EnumWrapper* addEnum(MomWrapper* mom, const std::string& name) {
        EnumWrapper* enumeration = new EnumWrapper();
        enumeration->setName(name);
        enumeration->setMom(&mom->getStruct());
        EXPECT_EQ(ZefOk, repository.addEnum(enumeration));
        return enumeration;
    }

    DdtWrapper* addDdt(MomWrapper* mom, const std::string& name, bool passphrase = false) {
        DdtWrapper* ddt = new DdtWrapper();
        ddt->setName(name);
        ddt->setMom(&mom->getStruct());
        ddt->setType(ZefMrType3String);
        ddt->setIsPassphrase(passphrase);
        EXPECT_EQ(ZefOk, repository.addDdt(ddt));
        return ddt;
    }

    StructWrapper* addStruct(MomWrapper* mom, const std::string& name) {
        StructWrapper* structure = new StructWrapper();
        structure->setName(name);
        structure->setMom(&mom->getStruct());
        EXPECT_EQ(ZefOk, repository.addStruct(structure));
        return structure;
    }

    StructMemberWrapper* addMember(StructWrapper* structure, const std::string& name, ZefOamSpiMrType_3 type,
                                   const Ref& ref = Ref()) {
        StructMemberWrapper* member = new StructMemberWrapper();
        member->setName(name);
        const ZefOamSpiMom* mom = structure->getStruct().mom;
        member->setMomName(mom->generalProperties.name);
        member->setMomVersion(mom->version);
        member->setType(type);
        setRef(*member, ref);
        EXPECT_EQ(ZefOk, structure->addMember(member));
        return member;
    }

    /// A containment of one MOM between two classes named by name only; the
    /// mim names and versions are left to compilation.
    ContWrapper* addCont(MomWrapper* mom, const std::string& name, const std::string& parent,
                         const std::string& child) {
        ContWrapper* cont = new ContWrapper(false);
        cont->setName(name);
        cont->setMom(&mom->getStruct());
        cont->setParentMocName(parent);
        cont->setChildMocName(child);
        EXPECT_EQ(ZefOk, repository.addCont(cont));
        return cont;
    }

    /// A containment between MOMs; empty mim names and versions stay unset.
    ContWrapper* addInterMimCont(const std::string& name, const Ref& parent, const Ref& child) {
        ContWrapper* cont = new ContWrapper(true);
        cont->setName(name);
        cont->setParentMocName(parent.name);
        cont->setChildMocName(child.name);
        if (!parent.mom.empty()) {
            cont->setParentMimName(parent.mom);
        }
        if (!parent.version.empty()) {
            cont->setParentMimVersion(parent.version);
        }
        if (!child.mom.empty()) {
            cont->setChildMimName(child.mom);
        }
        if (!child.version.empty()) {
            cont->setChildMimVersion(child.version);
        }
        EXPECT_EQ(ZefOk, repository.addCont(cont));
        return cont;
    }

    /// An association end of `mom` named `name`, in relationship
    /// `identifier`, at the class `classifier` of the MOM named `mimName`.
    AssociationEndWrapper* addEnd(MomWrapper* mom, const std::string& name, const std::string& identifier,
                                  const std::string& classifier, const std::string& mimName) {
        AssociationEndWrapper* end = new AssociationEndWrapper();
        end->setName(name);
        end->setMom(&mom->getStruct());
        end->setIdentifier(identifier);
        end->setClassifier(classifier);
        end->setMimName(mimName);
        EXPECT_EQ(ZefOk, repository.addAssocEnd(end));
        return end;
    }

    BiDirAssociationWrapper* addBidir(MomWrapper* mom, const std::string& name, const std::string& firstEndKey,
                                      const std::string& secondEndKey) {
        BiDirAssociationWrapper* assoc = new BiDirAssociationWrapper();
        assoc->setName(name);
        assoc->setMom(&mom->getStruct());
        assoc->setFirstAssociationEndId(firstEndKey);
        assoc->setSecondAssociationEndId(secondEndKey);
        EXPECT_EQ(ZefOk, repository.addBidir(assoc));
        return assoc;
    }

    UniDirAssociationWrapper* addUnidir(MomWrapper* mom, const std::string& name, const std::string& endKey,
                                        const std::string& originKey, bool external = false) {
        UniDirAssociationWrapper* assoc = new UniDirAssociationWrapper();
        assoc->setName(name);
        assoc->setMom(&mom->getStruct());
        assoc->setAssociationEnd(endKey);
        assoc->setOriginMocId(originKey);
        if (external) {
            assoc->setIsExternal();
        }
        EXPECT_EQ(ZefOk, repository.addUnidir(assoc));
        return assoc;
    }

    /// Gives a MOM its modelling-standard name and version.
    static void setQcimName(MomWrapper* mom, const std::string& name, const std::string& version) {
        mom->push_back_domain_extension("QCIM", "qcimMomName", name);
        mom->push_back_domain_extension("QCIM", "qcimMomVersion", version);
    }

    // ---- findings ----------------------------------------------------------

    static std::string error(const std::string& text) { return "ERROR, ModelRepository: " + text; }
    static std::string warning(const std::string& text) { return "WARNING, ModelRepository: " + text; }

    /// Every finding not taken yet, in the order recorded; they all count as
    /// taken afterwards (compare the result with the expected list).
    std::vector<std::string> takeMessages() {
        std::vector<std::string> result;
        size_t index = 0;
        for (const std::string& message : repository.getMessages()) {
            if (index++ >= _taken) {
                result.push_back(message);
            }
        }
        _taken = repository.getMessages().size();
        return result;
    }

    // ---- log ---------------------------------------------------------------

    /// Every trace line so far as (function, message), in order. A trace
    /// line reads "<time> TR <file>:<line> - <function padded to 25> <message>".
    std::vector<std::pair<std::string, std::string>> traceLines() {
        Zef::LoggingWrapperTestAccess::flush();
        std::vector<std::pair<std::string, std::string>> result;
        for (const std::string& line : _log.lines()) {
            const size_t dash = line.find(" - ");
            if (line.size() < 27 || line.compare(24, 3, "TR ") != 0 || dash == std::string::npos) {
                continue;
            }
            const size_t functionPos = dash + 3;
            size_t functionEnd = line.find(' ', functionPos);
            functionEnd = functionEnd == std::string::npos ? line.size() : functionEnd;
            const size_t messagePos = std::max(functionPos + 25, functionEnd) + 1;
            result.emplace_back(line.substr(functionPos, functionEnd - functionPos),
                                messagePos <= line.size() ? line.substr(messagePos) : std::string());
        }
        return result;
    }

    /// The messages traced by `function`, in order.
    std::vector<std::string> tracesOf(const std::string& function) {
        std::vector<std::string> result;
        for (const auto& line : traceLines()) {
            if (line.first == function) {
                result.push_back(line.second);
            }
        }
        return result;
    }

    /// Number of trace lines whose message is exactly `message`.
    int traceCount(const std::string& message) {
        int count = 0;
        for (const auto& line : traceLines()) {
            count += line.second == message ? 1 : 0;
        }
        return count;
    }

    bool traced(const std::string& message) { return traceCount(message) > 0; }

    /// The error messages (level word "ER") of the log so far.
    std::vector<std::string> loggedErrors() {
        Zef::LoggingWrapperTestAccess::flush();
        return _log.errors();
    }

    // Declared first: the logger points at the test's file before the
    // repository writes anything, and the loose MOMs outlive the classes
    // that refer to them.
    LogCapture _log;
    std::vector<std::unique_ptr<MomWrapper>> _looseMoms;
    ZefModelRepositoryService::ModelRepository repository;

private:
    size_t _taken = 0;
};

} // namespace ZefTest

#endif // ZEF_TEST_COMPILE_TEST_SUPPORT_H
