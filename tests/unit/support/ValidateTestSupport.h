#ifndef ZEF_TEST_VALIDATE_TEST_SUPPORT_H
#define ZEF_TEST_VALIDATE_TEST_SUPPORT_H

// Fixture of the validation tests: the compilation fixture's fresh
// standalone repository, record builders and message ledger, plus builders
// for the state compilation leaves behind (pointers set by hand), so that
// each check can be run on exactly the model a test needs.

#include <initializer_list>
#include <string>

#include "CompileTestSupport.h"
#include "LitWrapper.h"

namespace ZefTest {

class ValidateTest : public CompileTest {
protected:
    using LitWrapper = ZefModelRepositoryService::LitWrapper;

    /// Gives a MOM with classes its namespace and prefix.
    static void publish(MomWrapper* mom) {
        mom->setHasMocs(true);
        mom->setNamespaceURI("urn:" + mom->getName());
        mom->setNamespacePrefix(mom->getName());
    }

    /// A literal of `enumeration` with a value.
    static LitWrapper* addLiteral(EnumWrapper* enumeration, const std::string& name, const std::string& value) {
        LitWrapper* literal = new LitWrapper();
        literal->setName(name);
        EXPECT_EQ(ZefOk, literal->setValue(value));
        EXPECT_EQ(ZefOk, enumeration->addLiteral(literal));
        return literal;
    }

    /// The key attribute of a class, which the rules on the attribute list
    /// leave alone: a class needs exactly one key, and an optional
    /// attribute must have the minimum 0.
    AttrWrapper* addKeyAttr(MocWrapper* moc, const std::string& name, ZefOamSpiMrType_3 type = ZefMrType3String) {
        AttrWrapper* attr = addQuietAttr(moc, name, type);
        attr->setIsKey(true);
        return attr;
    }

    /// An attribute beside the key that the rules on the attribute list
    /// leave alone: optional, minimum 0, persistent.
    AttrWrapper* addQuietAttr(MocWrapper* moc, const std::string& name, ZefOamSpiMrType_3 type) {
        AttrWrapper* attr = addAttr(moc, name, type);
        EXPECT_EQ(ZefOk, attr->setMin("0"));
        return attr;
    }

    /// A class that no class rule finds fault with: a MOM, a root class (so
    /// it needs no parent), one key attribute.
    MocWrapper* addSoundMoc(MomWrapper* mom, const std::string& name) {
        MocWrapper* moc = addRootMoc(mom, name);
        addKeyAttr(moc, "id");
        return moc;
    }

    /// A derived string type whose valid values are `pattern`.
    DdtWrapper* addPatternDdt(MomWrapper* mom, const std::string& name, const std::string& pattern) {
        DdtWrapper* ddt = addDdt(mom, name);
        EXPECT_EQ(ZefOk, ddt->setPattern(pattern));
        return ddt;
    }

    /// Gives a typed element its default values as the parser does: each
    /// value joins the type's value list, and the record holds them joined
    /// by blanks.
    template <typename Element>
    static void setDefaults(Element* element, std::initializer_list<std::string> values) {
        std::string joined;
        for (const std::string& value : values) {
            element->getTypeContainer().addDefaultValue(value);
            joined += (joined.empty() ? "" : " ") + value;
        }
        EXPECT_EQ(ZefOk, element->setDefaultValue(joined));
    }

    /// Resolves a containment as compilation does: its classes, and each
    /// class's first containment as parent resp. child when it has none.
    static void resolveCont(ContWrapper* cont, MocWrapper* parent, MocWrapper* child) {
        if (parent != nullptr) {
            cont->setParentMoc(&parent->getStruct());
            if (parent->getStruct().childContainment == nullptr) {
                parent->setChildContainment(&cont->getStruct());
            }
        }
        if (child != nullptr) {
            cont->setChildMoc(&child->getStruct());
            if (child->getStruct().parentContainment == nullptr) {
                child->setParentContainment(&cont->getStruct());
            }
        }
    }

    /// Resolves an association end as compilation does.
    static void resolveEnd(AssociationEndWrapper* end, MocWrapper* moc, AttrWrapper* attr) {
        end->setMoc(moc == nullptr ? nullptr : &moc->getStruct());
        end->setAttribute(attr == nullptr ? nullptr : &attr->getStruct());
    }
};

} // namespace ZefTest

#endif // ZEF_TEST_VALIDATE_TEST_SUPPORT_H
