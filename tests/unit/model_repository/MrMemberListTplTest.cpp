#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LogCapture.h"
#include "MrMemberListTpl.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// The smallest member a list can hold: a key, a published record with a
/// next pointer, and a count of destroyed members to watch ownership.
struct Member {
    struct Record {
        const Record* next = nullptr;
    };
    explicit Member(const std::string& key, int* destroyed = nullptr) : key(key), destroyed(destroyed) {}
    ~Member()
    {
        if (destroyed != nullptr) {
            ++*destroyed;
        }
    }
    std::string getId() const { return key; }
    Record& getStruct() { return record; }
    void setNext(Member* next) { record.next = &next->record; }

    std::string key;
    int* destroyed;
    Record record;
};

} // namespace

TEST(MrMemberListTplTest, FirstMemberBecomesTheContainersFirstField)
{
    MrMemberListTpl<Member> list;
    const Member::Record* first = nullptr;
    Member* a = new Member("a");
    EXPECT_EQ(nullptr, list.front());
    EXPECT_EQ(ZefOk, list.addMember(a, first));
    EXPECT_EQ(&a->record, first);
    EXPECT_EQ(a, list.front());
}

TEST(MrMemberListTplTest, MembersChainInTheOrderAdded)
{
    MrMemberListTpl<Member> list;
    const Member::Record* first = nullptr;
    Member* a = new Member("a");
    Member* b = new Member("b");
    Member* c = new Member("c");
    EXPECT_EQ(ZefOk, list.addMember(a, first));
    EXPECT_EQ(ZefOk, list.addMember(b, first));
    EXPECT_EQ(ZefOk, list.addMember(c, first));
    EXPECT_EQ(&a->record, first);
    EXPECT_EQ(&b->record, first->next);
    EXPECT_EQ(&c->record, first->next->next);
    EXPECT_EQ(nullptr, c->record.next);
    ASSERT_EQ(3u, list.size());
    EXPECT_EQ(a, list.getList().front());
    EXPECT_EQ(c, list.getList().back());
}

TEST(MrMemberListTplTest, NullMemberIsRefused)
{
    ZefTest::LogCapture log;
    MrMemberListTpl<Member> list;
    const Member::Record* first = nullptr;
    EXPECT_EQ(ZefInvalidArgument, list.addMember(nullptr, first));
    EXPECT_EQ(nullptr, first);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(Messages{"Pointer of the member is 0, can not add to the list."}, log.errors());
    EXPECT_EQ(Messages{"Pointer of the member is 0, can not add to the list."}, log.traces());
}

TEST(MrMemberListTplTest, MemberWithoutKeyIsRefused)
{
    ZefTest::LogCapture log;
    MrMemberListTpl<Member> list;
    const Member::Record* first = nullptr;
    Member unnamed("");
    EXPECT_EQ(ZefInvalidArgument, list.addMember(&unnamed, first));
    EXPECT_EQ(nullptr, first);
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(Messages{"Member id is empty, can not add to the list."}, log.errors());
    EXPECT_EQ(Messages{"Member id is empty, can not add to the list."}, log.traces());
}

TEST(MrMemberListTplTest, DuplicateKeyIsRefusedAndTheChainStays)
{
    ZefTest::LogCapture log;
    MrMemberListTpl<Member> list;
    const Member::Record* first = nullptr;
    Member* a = new Member("a");
    Member* b = new Member("b");
    Member again("b");
    EXPECT_EQ(ZefOk, list.addMember(a, first));
    EXPECT_EQ(ZefOk, list.addMember(b, first));
    EXPECT_EQ(ZefAlreadyExists, list.addMember(&again, first));
    EXPECT_EQ(2u, list.size());
    EXPECT_EQ(nullptr, b->record.next);
    EXPECT_EQ(Messages{"Member (b) already exist."}, log.errors());
    EXPECT_EQ(Messages{"Member (b) already exist."}, log.traces());
}

TEST(MrMemberListTplTest, DuplicateAmongManyMembersIsRefused)
{
    ZefTest::LogCapture log;
    MrMemberListTpl<Member> list;
    const Member::Record* first = nullptr;
    for (int i = 0; i < 250; ++i) {
        ASSERT_EQ(ZefOk, list.addMember(new Member("m" + std::to_string(i)), first));
    }
    Member again("m171");
    EXPECT_EQ(ZefAlreadyExists, list.addMember(&again, first));
    EXPECT_EQ(ZefOk, list.addMember(new Member("m250"), first));
    EXPECT_EQ(251u, list.size());
    EXPECT_EQ(Messages{"Member (m171) already exist."}, log.errors());
}

TEST(MrMemberListTplTest, ListDestroysItsMembers)
{
    int destroyed = 0;
    {
        MrMemberListTpl<Member> list;
        const Member::Record* first = nullptr;
        list.addMember(new Member("a", &destroyed), first);
        list.addMember(new Member("b", &destroyed), first);
    }
    EXPECT_EQ(2, destroyed);
}

TEST(MrMemberListTplTest, RefusedMemberStaysWithTheCaller)
{
    int destroyed = 0;
    Member* again = new Member("a", &destroyed);
    {
        ZefTest::LogCapture log;
        MrMemberListTpl<Member> list;
        const Member::Record* first = nullptr;
        list.addMember(new Member("a", &destroyed), first);
        EXPECT_EQ(ZefAlreadyExists, list.addMember(again, first));
    }
    EXPECT_EQ(1, destroyed);
    delete again;
    EXPECT_EQ(2, destroyed);
}
