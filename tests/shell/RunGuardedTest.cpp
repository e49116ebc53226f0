// The top-level guard round every slot.
#include <gtest/gtest.h>

#include "document/RuntimeFailure.h"
#include "shell/RunGuarded.h"
#include "support/ScriptedHost.h"

namespace tolva {
namespace {

class Guard : public ::testing::Test {
protected:
    void SetUp() override {
        SetGuardHost(&host);
        SetGuardExit([this](int status) { exits.push_back(status); });
    }
    void TearDown() override {
        SetGuardHost(nullptr);
        SetGuardExit(nullptr);
    }
    testing::ScriptedHost host;
    std::vector<int> exits;
};

TEST_F(Guard, BodyThatEndsWellShowsNothing) {
    int runs = 0;
    EXPECT_TRUE(RunGuarded([&] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(exits.empty());
}

TEST_F(Guard, RunTimeFailureShowsItsBoxAndEndsTheProgram) {
    EXPECT_FALSE(RunGuarded([] { throw RuntimeFailure("Type mismatch"); }));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].title, "Run-time error");
    EXPECT_EQ(host.messages[0].text, "Type mismatch");
    EXPECT_EQ(host.messages[0].buttons, MessageButtons::OK);
    EXPECT_EQ(exits, std::vector<int>{1});
}

TEST_F(Guard, AnyOtherFailureIsStoppedToo) {
    EXPECT_FALSE(RunGuarded([] { throw 42; }));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].title, "Run-time error");
    EXPECT_EQ(exits.size(), 1u);
    EXPECT_NE(exits[0], 0);
}

TEST_F(Guard, NestedGuardsReportOnceAtTheInnermost) {
    bool outer = RunGuarded([] {
        RunGuarded([] { throw RuntimeFailure("Overflow"); });
    });
    EXPECT_TRUE(outer);
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Overflow");
}

}  // namespace
}  // namespace tolva
