// The handle scheme of one element kind: the n-th object gets 3017 + n,
// lookups of handles that were not issued raise a range error naming the
// handle, and cleanup deletes the objects last to first and starts over.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "BaseIf2Impl.h"
#include "If2Array.h"

namespace {

using ZefModelRepositoryService::BaseIf2Impl;
using ZefModelRepositoryService::If2Array;

/// An interface object that records when it is deleted.
class Probe final : public BaseIf2Impl {
public:
    Probe(int id, std::vector<int>& deleted) : _id(id), _deleted(deleted) {}
    ~Probe() { _deleted.push_back(_id); }
    int id() const { return _id; }

private:
    int _id;
    std::vector<int>& _deleted;
};

std::string rangeErrorOf(const If2Array<Probe>& array, uint64_t handle)
{
    try {
        array.at(handle);
    } catch (const std::out_of_range& error) {
        return error.what();
    }
    return "no range error";
}

} // namespace

TEST(If2Array, GivesTheNthObjectTheHandle3017PlusN)
{
    std::vector<int> deleted;
    If2Array<Probe> array;
    auto* first = new Probe(1, deleted);
    auto* second = new Probe(2, deleted);
    EXPECT_EQ(0u, first->getHandle());
    array.push(first);
    array.push(second);
    EXPECT_EQ(3017u, first->getHandle());
    EXPECT_EQ(3018u, second->getHandle());
    EXPECT_EQ(1, array.at(3017).id());
    EXPECT_EQ(2, array.at(3018).id());
    EXPECT_EQ(2u, array.size());
}

TEST(If2Array, RefusesHandlesThatWereNotIssued)
{
    std::vector<int> deleted;
    If2Array<Probe> array;
    array.push(new Probe(1, deleted));
    EXPECT_EQ("handle 3016 outside of 1 issued from 3017", rangeErrorOf(array, 3016));
    EXPECT_EQ("handle 0 outside of 1 issued from 3017", rangeErrorOf(array, 0));
    EXPECT_EQ("handle 3018 outside of 1 issued from 3017", rangeErrorOf(array, 3018));
}

TEST(If2Array, AnEmptyArrayKnowsNoHandle)
{
    If2Array<Probe> array;
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeErrorOf(array, 3017));
}

TEST(If2Array, ReadsOnlyTheLow32BitsOfAHandle)
{
    std::vector<int> deleted;
    If2Array<Probe> array;
    array.push(new Probe(1, deleted));
    EXPECT_EQ(1, array.at((uint64_t{1} << 32) + 3017).id());
}

TEST(If2Array, CleanupDeletesLastToFirstAndNumberingStartsAgain)
{
    std::vector<int> deleted;
    If2Array<Probe> array;
    array.push(new Probe(1, deleted));
    array.push(new Probe(2, deleted));
    array.push(new Probe(3, deleted));
    array.cleanup();
    EXPECT_EQ((std::vector<int>{3, 2, 1}), deleted);
    EXPECT_EQ(0u, array.size());
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeErrorOf(array, 3017));

    auto* again = new Probe(4, deleted);
    array.push(again);
    EXPECT_EQ(3017u, again->getHandle());
}

TEST(If2Array, DestructionDeletesWhatIsLeft)
{
    std::vector<int> deleted;
    {
        If2Array<Probe> array;
        array.push(new Probe(1, deleted));
        array.push(new Probe(2, deleted));
    }
    EXPECT_EQ((std::vector<int>{2, 1}), deleted);
}
