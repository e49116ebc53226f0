// Snapshots of the design for its history: taken after every step, put
// back by Undo and Redo. An object's image is made by its kind's whole-state
// copy; the pointers between objects (an object's form, a form's embedded
// objects) are kept as places in the arrays and made pointers again on the
// way back. An image is shared with the snapshot before when the step did
// not touch the object: it lies outside the step's scope and everything
// the screen itself changes of objects (place, size, name, number, form,
// showing, focus, stacking) is as the image holds it.
#include <unordered_set>

#include "document/Host.h"
#include "document/LogSink.h"
#include "document/QuietObjectOwner.h"
#include "objects/form/ctlKOMAForm.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

namespace {

// What an image's copy talks to: nothing is asked, nothing heard; messages
// (which a copy has no reason to give) reach the host.
class ImageOwner : public QuietObjectOwner {
public:
    ImageOwner(Host& host, LogSink& log) : host_(host), log_(log) {}
    Host& OwnerHost() override { return host_; }
    LogSink& OwnerLog() override { return log_; }

private:
    Host& host_;
    LogSink& log_;
};

// An object of the screen's arrays at its place; anything else (no object,
// one the screen does not hold) has none.
ObjectPlace PlaceOf(const ctlTolvaScreen& screen, const KomaObject* object) {
    if (!object || object->ArrayPlace() < 1) return {};
    const ObjectPlace place{object->ScreenType(), object->ArrayPlace()};
    return screen.ObjectAt(place.type, place.index) == object ? place : ObjectPlace{};
}

int FormIndexOf(const ctlTolvaScreen& screen, const KomaObject* form) {
    const ObjectPlace place = PlaceOf(screen, form);
    return place.type == type::Form ? place.index : 0;
}

// Whether the image still shows what the screen may have changed of the
// object without the object's own code.
bool FrameUnchanged(const KomaObject& object, const ObjectImage& image, int parentForm,
                    const std::vector<ObjectPlace>& references) {
    const KomaObject& copy = *image.copy;
    return image.parentForm == parentForm && image.references == references &&
           copy.KOMAName() == object.KOMAName() && copy.KOMARelatedTableID() == object.KOMARelatedTableID() &&
           copy.KOMABoundsX() == object.KOMABoundsX() && copy.KOMABoundsY() == object.KOMABoundsY() &&
           copy.KOMAWidth() == object.KOMAWidth() && copy.KOMAHeight() == object.KOMAHeight() &&
           copy.Left() == object.Left() && copy.Top() == object.Top() &&
           copy.Width() == object.Width() && copy.Height() == object.Height() &&
           copy.Visible() == object.Visible() && copy.HasFocus() == object.HasFocus() &&
           copy.StackStamp() == object.StackStamp() && copy.iIndex() == object.iIndex() &&
           copy.PCTwipsToTolvaPixels() == object.PCTwipsToTolvaPixels();
}

}  // namespace

std::vector<const KomaObject*> ctlTolvaScreen::CurrentFormObjects() const {
    std::vector<const KomaObject*> out;
    if (!currentFormRef_ || !HoldsObject(currentFormRef_)) return out;
    out.push_back(currentFormRef_);
    for (KomaObject* object : currentFormRef_->GetEmbeddedObjectReferenceList())
        if (object) out.push_back(object);
    return out;
}

DesignSnapshot ctlTolvaScreen::TakeSnapshot(const DesignSnapshot* previous,
                                            const SnapshotScope& scope) {
    if (!imageOwner_) imageOwner_ = std::make_shared<ImageOwner>(host_, log_);
    DesignSnapshot snapshot;
    snapshot.imageOwner = imageOwner_;

    std::unordered_set<const KomaObject*> touched(scope.objects.begin(), scope.objects.end());

    for (int t = 0; t < type::Count; ++t) {
        auto& images = snapshot.arrays[t];
        images.reserve(arrays_[t].size());
        snapshot.ids[t].reserve(arrays_[t].size());
        for (std::size_t i = 0; i < arrays_[t].size(); ++i) {
            const KomaObject& object = *arrays_[t][i];
            snapshot.ids[t].push_back(object.KOMAObjectID());
            const int parentForm = FormIndexOf(*this, object.ParentForm());
            std::vector<ObjectPlace> references;
            if (t == type::Form)
                for (KomaObject* embedded :
                     static_cast<const ctlKOMAForm&>(object).GetEmbeddedObjectReferenceList())
                    references.push_back(PlaceOf(*this, embedded));

            if (previous && !scope.everything && !touched.count(&object) &&
                i < previous->arrays[t].size()) {
                const auto& before = previous->arrays[t][i];
                if (FrameUnchanged(object, *before, parentForm, references)) {
                    images.push_back(before);
                    continue;
                }
            }

            auto image = std::make_shared<ObjectImage>();
            image->copy = MakeObject(t);
            image->copy->SetOwner(imageOwner_.get());
            image->copy->CopyWholeStateFrom(object);
            image->copy->ParentForm(nullptr);
            if (t == type::Form)
                static_cast<ctlKOMAForm&>(*image->copy)
                    .RestoreReferenceList(std::vector<KomaObject*>(references.size(), nullptr));
            image->parentForm = parentForm;
            image->references = std::move(references);
            images.push_back(std::move(image));
            ++snapshot.madeImages;
        }
    }

    snapshot.numMenus = numMenus_;
    snapshot.frontStamp = frontStamp_;
    snapshot.backStamp = backStamp_;
    snapshot.currentDesignForm = currentDesignForm_;
    snapshot.currentForm = FormIndexOf(*this, currentFormRef_);
    snapshot.selectedType = selectedObjectType_;
    snapshot.selectedName = selectedObjectName_;
    snapshot.selected = PlaceOf(*this, selectedObjectRef_);
    return snapshot;
}

void ctlTolvaScreen::RestoreSnapshot(const DesignSnapshot& snapshot,
                                     const DesignSnapshot* current) {
    ShowNodes(false, true);
    if (!imageOwner_) imageOwner_ = std::make_shared<ImageOwner>(host_, log_);

    selectedObjectRef_ = nullptr;
    currentFormRef_ = nullptr;
    // An object made again from its image, owned by the screen.
    auto remake = [&](int t, std::size_t i) {
        std::unique_ptr<KomaObject> made = MakeObject(t);
        if (made) {
            made->SetOwner(imageOwner_.get());
            made->CopyWholeStateFrom(*snapshot.arrays[t][i]->copy);
        }
        return made;
    };
    for (int t = 0; t < type::Count; ++t) {
        const auto& images = snapshot.arrays[t];
        auto& array = arrays_[t];
        if (!current) {
            for (const auto& object : array) names_.Remove(object->KOMAName(), object.get());
            array.clear();
        }
        // The places both have: an object whose image the design as it
        // stands shares stays, any other is made again in its place.
        const std::size_t both = std::min(array.size(), images.size());
        for (std::size_t i = 0; i < both; ++i) {
            if (current && i < current->arrays[t].size() && current->arrays[t][i] == images[i])
                continue;
            std::unique_ptr<KomaObject> made = remake(t, i);
            if (!made) continue;
            names_.Remove(array[i]->KOMAName(), array[i].get());
            const int index = made->iIndex();
            made->SetOwner(this);
            made->ArrayPlace(static_cast<int>(i + 1));
            names_.Add(made->KOMAName(), t, static_cast<int>(i + 1), made.get());
            array[i] = std::move(made);
            array[i]->iIndex(index);
        }
        // Places the design has no more, then the ones it gains.
        while (array.size() > images.size()) {
            names_.Remove(array.back()->KOMAName(), array.back().get());
            array.pop_back();
        }
        for (std::size_t i = array.size(); i < images.size(); ++i) {
            std::unique_ptr<KomaObject> made = remake(t, i);
            if (!made) break;
            const int index = made->iIndex();
            // The index an object keeps after a deletion need not be its place.
            AddToArray(t, std::move(made))->iIndex(index);
        }
        // The IDs given since the images were made, as the design gave them
        // (a table's cells follow their table's).
        for (std::size_t i = 0; i < array.size() && i < snapshot.ids[t].size(); ++i)
            if (snapshot.ids[t][i] != array[i]->KOMAObjectID()) array[i]->KOMAObjectID(snapshot.ids[t][i]);
    }
    // Then the pointers between them.
    for (int t = 0; t < type::Count; ++t)
        for (std::size_t i = 0; i < snapshot.arrays[t].size() && i < arrays_[t].size(); ++i) {
            const ObjectImage& image = *snapshot.arrays[t][i];
            KomaObject& object = *arrays_[t][i];
            object.ParentForm(image.parentForm ? FormAt(image.parentForm) : nullptr);
            if (t == type::Form) {
                std::vector<KomaObject*> references;
                for (const ObjectPlace& place : image.references)
                    references.push_back(place.type >= 0 ? ObjectAt(place.type, place.index)
                                                         : nullptr);
                static_cast<ctlKOMAForm&>(object).RestoreReferenceList(references);
            }
        }

    numMenus_ = snapshot.numMenus;
    menuNamesValid_ = false;
    frontStamp_ = snapshot.frontStamp;
    backStamp_ = snapshot.backStamp;
    currentDesignForm_ = snapshot.currentDesignForm;
    currentFormRef_ = snapshot.currentForm ? FormAt(snapshot.currentForm) : nullptr;
    selectedObjectType_ = snapshot.selectedType;
    selectedObjectName_ = snapshot.selectedName;
    selectedObjectRef_ =
        snapshot.selected.type >= 0 ? ObjectAt(snapshot.selected.type, snapshot.selected.index)
                                    : nullptr;
    if (selectedObjectRef_) {
        const bool line = selectedObjectType_ == type::Line;
        PlaceNodes(*selectedObjectRef_, line);
        ShowNodes(true, line);
    }
    Log("Design put back from its history");
}

}  // namespace tolva
