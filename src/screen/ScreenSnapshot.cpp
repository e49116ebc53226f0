// Snapshots of the design for its history: taken after every step, put
// back by Undo and Redo. An object's image is made by its kind's whole-state
// copy; the pointers between objects (an object's form, a form's embedded
// objects) are kept as places in the arrays and made pointers again on the
// way back. An image is shared with the snapshot before when the step did
// not touch the object: it lies outside the step's scope and everything
// the screen itself changes of objects (place, size, name, number, form,
// showing, focus, stacking) is as the image holds it.
#include <unordered_map>

#include "document/Host.h"
#include "document/LogSink.h"
#include "objects/form/ctlKOMAForm.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

namespace {

// What an image's copy talks to: names are never checked, events go
// nowhere; messages (which a copy has no reason to give) reach the host.
class ImageOwner : public ObjectOwner {
public:
    ImageOwner(Host& host, LogSink& log) : host_(host), log_(log) {}
    Host& OwnerHost() override { return host_; }
    LogSink& OwnerLog() override { return log_; }
    bool IsNewNameUnique(const std::string&, const std::string&) override { return true; }
    bool OwnerGetObjectID(const std::string&, int&) override { return false; }
    void ObjectMouseDown(KomaObject&, int, int, double, double) override {}
    void ObjectMouseMove(KomaObject&, int, int, double, double) override {}
    void ObjectMouseUp(KomaObject&, int, int, double, double) override {}
    void ObjectSelected(KomaObject&) override {}
    void ObjectDeleted(KomaObject&) override {}
    void ObjectMoved(KomaObject&, int, int) override {}
    void ObjectResized(KomaObject&, int, int) override {}
    void ObjectPicChanged(KomaObject&) override {}
    long long NextStackStamp(bool) override { return 0; }

private:
    Host& host_;
    LogSink& log_;
};

using PlaceMap = std::unordered_map<const KomaObject*, ObjectPlace>;

ObjectPlace PlaceOf(const PlaceMap& places, const KomaObject* object) {
    if (!object) return {};
    auto it = places.find(object);
    return it == places.end() ? ObjectPlace{} : it->second;
}

int FormIndexOf(const PlaceMap& places, const KomaObject* form) {
    const ObjectPlace place = PlaceOf(places, form);
    return place.type == type::Form ? place.index : 0;
}

// Whether the image still shows what the screen may have changed of the
// object without the object's own code.
bool FrameUnchanged(const KomaObject& object, const ObjectImage& image, int parentForm,
                    const std::vector<ObjectPlace>& references) {
    const KomaObject& copy = *image.copy;
    return image.parentForm == parentForm && image.references == references &&
           copy.KOMAName() == object.KOMAName() && copy.KOMAObjectID() == object.KOMAObjectID() &&
           copy.KOMARelatedTableID() == object.KOMARelatedTableID() &&
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

    PlaceMap places;
    for (int t = 0; t < type::Count; ++t)
        for (std::size_t i = 0; i < arrays_[t].size(); ++i)
            places[arrays_[t][i].get()] = ObjectPlace{t, static_cast<int>(i + 1)};
    std::unordered_map<const KomaObject*, bool> touched;
    for (const KomaObject* object : scope.objects) touched[object] = true;

    for (int t = 0; t < type::Count; ++t) {
        auto& images = snapshot.arrays[t];
        images.reserve(arrays_[t].size());
        for (std::size_t i = 0; i < arrays_[t].size(); ++i) {
            const KomaObject& object = *arrays_[t][i];
            const int parentForm = FormIndexOf(places, object.ParentForm());
            std::vector<ObjectPlace> references;
            if (t == type::Form)
                for (KomaObject* embedded :
                     static_cast<const ctlKOMAForm&>(object).GetEmbeddedObjectReferenceList())
                    references.push_back(PlaceOf(places, embedded));

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
    snapshot.currentForm = FormIndexOf(places, currentFormRef_);
    snapshot.selectedType = selectedObjectType_;
    snapshot.selectedName = selectedObjectName_;
    snapshot.selected = PlaceOf(places, selectedObjectRef_);
    return snapshot;
}

void ctlTolvaScreen::RestoreSnapshot(const DesignSnapshot& snapshot) {
    ShowNodes(false, true);
    UnloadAll();

    // Every object again, in its place, from its image.
    for (int t = 0; t < type::Count; ++t)
        for (const auto& image : snapshot.arrays[t]) {
            std::unique_ptr<KomaObject> made = MakeObject(t);
            if (!made) continue;
            made->SetOwner(imageOwner_.get());
            made->CopyWholeStateFrom(*image->copy);
            const int index = made->iIndex();
            KomaObject* object = AddToArray(t, std::move(made));
            // The index an object keeps after a deletion need not be its place.
            object->iIndex(index);
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
