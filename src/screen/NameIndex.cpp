#include "screen/NameIndex.h"

#include <algorithm>

namespace tolva {

void NameIndex::Add(const std::string& name, int type, int position, KomaObject* object) {
    const Entry entry{type, position, object};
    auto [slot, made] = byName_.try_emplace(name, Slot{entry, {}});
    if (!made) slot->second.more.push_back(entry);
}

namespace {

// Takes the object's entry out of the slot; false when it is not there.
template <typename SlotT, typename EntryT>
bool TakeOut(SlotT& slot, const KomaObject* object, EntryT& taken) {
    if (slot.first.object == object) {
        taken = slot.first;
        if (!slot.more.empty()) {
            slot.first = slot.more.front();
            slot.more.erase(slot.more.begin());
        } else {
            slot.first.object = nullptr;
        }
        return true;
    }
    auto it = std::find_if(slot.more.begin(), slot.more.end(),
                           [object](const EntryT& e) { return e.object == object; });
    if (it == slot.more.end()) return false;
    taken = *it;
    slot.more.erase(it);
    return true;
}

}  // namespace

void NameIndex::Remove(const std::string& name, const KomaObject* object) {
    auto found = byName_.find(name);
    if (found == byName_.end()) return;
    Entry taken;
    if (!TakeOut(found->second, object, taken)) return;
    if (!found->second.first.object) byName_.erase(found);
}

void NameIndex::Rename(const KomaObject* object, const std::string& oldName,
                       const std::string& newName) {
    auto found = byName_.find(oldName);
    if (found == byName_.end()) return;
    Entry moved;
    if (!TakeOut(found->second, object, moved)) return;
    if (!found->second.first.object) byName_.erase(found);
    Add(newName, moved.type, moved.position, moved.object);
}

const NameIndex::Entry* NameIndex::Find(int type, const std::string& name) const {
    auto found = byName_.find(name);
    if (found == byName_.end()) return nullptr;
    const Slot& slot = found->second;
    const Entry* best = slot.first.type == type ? &slot.first : nullptr;
    for (const Entry& e : slot.more)
        if (e.type == type && (!best || e.position < best->position)) best = &e;
    return best;
}

std::size_t NameIndex::Size() const {
    std::size_t n = 0;
    for (const auto& [name, slot] : byName_) n += 1 + slot.more.size();
    return n;
}

}  // namespace tolva
