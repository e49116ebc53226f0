#pragma once
// The fixture of the tests of one kind that takes pictures: the object on a
// recording owner, in a fresh working directory of short name (so that
// relative picture paths fit the 8.3 rule), pictures made on disk and known
// to the scripted host, and the object's rows and record at hand.
#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "support/OwnedObjectFixture.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {

template <typename Object>
class PictureObjectFixture : public OwnedObjectFixture<Object> {
protected:
    // name: the object's name; prefix: the working directory's.
    PictureObjectFixture(const char* name, const char* prefix) : name_(name), prefix_(prefix) {}

    using OwnedObjectFixture<Object>::owner;
    using OwnedObjectFixture<Object>::object;

    void SetUp() override {
        OwnedObjectFixture<Object>::SetUp();
        object.KOMAName(name_);
        workDir_ = std::make_unique<ShortNamedDirectory>(prefix_);
        ASSERT_TRUE(workDir_->Made());
    }
    void TearDown() override { workDir_.reset(); }

    // A file of the name on disk, which the host reads as a picture of the
    // size.
    void MakePicture(const std::string& path, int width, int height) {
        std::ofstream(path) << "BM";
        owner.host.pictures[path] = PictureSize{width, height};
    }
    std::vector<std::string> Messages() const { return owner.host.MessageLines(); }
    void Clear() {
        owner.host.ClearRecord();
        owner.events.clear();
    }

private:
    const char* name_;
    const char* prefix_;
    std::unique_ptr<ShortNamedDirectory> workDir_;
};

// The object's record; the writer must say it went well.
template <typename Object>
LineList RecordOf(Object& object) {
    LineList lines;
    bool ok = false;
    object.ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    return lines;
}

}  // namespace tolva::testing
