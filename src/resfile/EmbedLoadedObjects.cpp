// Stage 5 of a load: each form takes the objects its record lists, and its
// menus are made. The kind of a listed object comes from the ID table, not
// from the form's pair. Nothing here ends the load: a step that fails is
// passed over and the next one runs, with what the failed step would have
// set left as the step before it left it.
#include <unordered_map>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "resfile/LoadTarget.h"
#include "resfile/ResourceLoading.h"
#include "resfile/TableCellIndex.h"

namespace tolva {

namespace {

constexpr const char* kLoadError = "Load Error";

class Embedding {
public:
    Embedding(const LoadedDesign& design, LoadTarget& target, Host& host)
        : design_(design), target_(target), host_(host), cells_(design.Store(type::Table)) {
        for (const LoadedRecord& menu : design.Store(type::Menu))
            menuById_.try_emplace(menu.id, &menu);
    }

    void Run() {
        for (const LoadedRecord& form : design_.Store(type::Form))
            // By the count of the record, not by the pairs it holds.
            for (int k = 1; k <= form.numObjects; ++k) EmbedListed(form, k);
    }

private:
    void EmbedListed(const LoadedRecord& form, int k) {
        // 1. The k-th ID. Beyond the pairs, or no number, the ID of the step
        // before stays; an ID with no row leaves its name and kind word.
        const auto& pairs = form.objectPairs;
        if (k <= static_cast<int>(pairs.size())) {
            try {
                id_ = ToInt32(pairs[static_cast<size_t>(k) - 1].first);
            } catch (const RuntimeFailure&) {
            }
        }
        if (design_.ids.Fits(id_)) {
            name_ = design_.ids.Name(id_);
            kindWord_ = design_.ids.KindWord(id_);
        }
        const int screenType = ObjectTypeFromWord(kindWord_);

        // 2.
        if (screenType == type::None) {
            host_.MessageBox("Invalid object type.  Could not embed in form", kLoadError);
            return;
        }

        // 3.
        if (screenType == type::Menu) {
            const auto menu = menuById_.find(id_);
            if (menu == menuById_.end()) return;
            const GroupList group = {{menu->second->name}, menu->second->menuItems};
            if (!target_.CreateNewMenuInForm(form.name, group))
                host_.MessageBox("Could not create menu", kLoadError);
            return;
        }

        // 4. Objects of cells are listed by the form as well; they are in
        // their table already.
        if (cells_.InAnyTable(id_)) return;
        if (!target_.EmbedObjectInForm(form.name, name_, screenType))
            host_.MessageBox("Could not embed in form", name_);
    }

    const LoadedDesign& design_;
    LoadTarget& target_;
    Host& host_;
    TableCellIndex cells_;
    std::unordered_map<int, const LoadedRecord*> menuById_;

    // What the steps leave for the next one.
    int id_ = 0;
    std::string name_;
    std::string kindWord_;
};

}  // namespace

void EmbedLoadedObjects(const LoadedDesign& design, LoadTarget& target, Host& host) {
    Embedding(design, target, host).Run();
}

bool BuildDesign(LoadedDesign& design, const RecordKinds& kinds, LoadTarget& target,
                 Host& host) {
    std::size_t records = 0;
    for (const auto& store : design.stores) records += store.size();
    target.ExpectObjects(records);
    if (!CreateLoadedObjects(design, kinds, target, host)) return false;
    EmbedLoadedObjects(design, target, host);
    // Stage 6: the IDs of the file only joined its records.
    target.DistributeObjectIds();
    return true;
}

}  // namespace tolva
