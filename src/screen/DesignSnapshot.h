#pragma once
// DesignSnapshot: the whole design at one moment, as the history keeps it.
// Every object is an image: a copy of it made by its kind's whole-state
// copy, with the objects it points at (its form, a form's embedded objects)
// written as places in the arrays. Images never change once made, so two
// snapshots share the images of every object a step did not touch.
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "document/KomaObject.h"
#include "document/ObjectOwner.h"
#include "document/ObjectTypes.h"

namespace tolva {

// An object's place: its screen type and its index in that type's array
// (from 1); type -1 for none.
struct ObjectPlace {
    int type = -1;
    int index = 0;
    bool operator==(const ObjectPlace&) const = default;
};

struct ObjectImage {
    // Owned by no screen; its form and references are left empty.
    std::unique_ptr<KomaObject> copy;
    // The index of its form in the forms' array, 0 for none.
    int parentForm = 0;
    // A form's embedded objects, in order.
    std::vector<ObjectPlace> references;
};

struct DesignSnapshot {
    std::array<std::vector<std::shared_ptr<const ObjectImage>>, type::Count> arrays;
    // Every object's ID, apart from its image: a deletion or a save gives
    // the IDs afresh, and an image is not made again for a new ID alone.
    std::array<std::vector<int>, type::Count> ids;
    int numMenus = 0;
    long long frontStamp = 0;
    long long backStamp = 0;
    std::string currentDesignForm;
    int currentForm = 0;  // index in the forms' array, 0 none
    int selectedType = type::None;
    std::string selectedName;
    ObjectPlace selected;

    // Images made for this snapshot (not shared with the one before).
    int madeImages = 0;
    // What the images' copies talk to: it lives as long as any of them.
    std::shared_ptr<ObjectOwner> imageOwner;
};

// What a step may have touched beside the objects whose place, size,
// name, index, form or stacking changed (those are found by comparing):
// everything, or the objects listed.
struct SnapshotScope {
    bool everything = false;
    std::vector<const KomaObject*> objects;
};

}  // namespace tolva
