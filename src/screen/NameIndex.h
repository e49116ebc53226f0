#pragma once
// NameIndex: the objects of the screen's arrays by name, so that a lookup by
// name costs the same in a design of ten objects and of ten thousand. Every
// entry knows its object's type and its place in the type's array (from 1).
// Names are unique in a design made by hand, but a load may bring two
// objects of one name: the index keeps them all and answers with the first
// in the order a lookup asks for.
//
// The screen keeps it true: an object is added when it joins an array and
// removed when it leaves, a rename moves it (the object tells its owner),
// and Clear empties it with the arrays.
#include <string>
#include <unordered_map>
#include <vector>

namespace tolva {

class KomaObject;

class NameIndex {
public:
    struct Entry {
        int type = 0;
        int position = 0;  // in the type's array, from 1
        KomaObject* object = nullptr;
    };

    void Add(const std::string& name, int type, int position, KomaObject* object);
    // Removes the object's entry from under name; nothing when it is not
    // there.
    void Remove(const std::string& name, const KomaObject* object);
    // Moves the object's entry from oldName to newName; an object that is
    // not indexed (one in a table cell) is passed over.
    void Rename(const KomaObject* object, const std::string& oldName, const std::string& newName);
    void Clear() { byName_.clear(); }
    // Room for this many names in all, so that a load does not rehash as
    // it grows.
    void Reserve(std::size_t count) { byName_.reserve(count); }

    // The object of the type with the name, the first in array order.
    const Entry* Find(int type, const std::string& name) const;
    // Every object of the name, of any type: calls visit(entry) for each.
    template <typename Visit>
    void ForEach(const std::string& name, Visit visit) const {
        auto found = byName_.find(name);
        if (found == byName_.end()) return;
        visit(found->second.first);
        for (const Entry& e : found->second.more) visit(e);
    }
    bool Contains(const std::string& name) const { return byName_.count(name) != 0; }
    std::size_t Size() const;

private:
    // The first object of a name is kept in the map's own node, so that the
    // usual case of a unique name costs one node and no second allocation.
    struct Slot {
        Entry first;
        std::vector<Entry> more;
    };
    std::unordered_map<std::string, Slot> byName_;
};

}  // namespace tolva
