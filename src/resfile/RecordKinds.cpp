#include "resfile/RecordKinds.h"

namespace tolva {

namespace {

const RecordKind* FindIn(const std::vector<RecordKind>& kinds, const std::string& word) {
    for (const RecordKind& kind : kinds)
        if (kind.word == word) return &kind;
    return nullptr;
}

}  // namespace

const RecordKind* RecordKinds::FindSection(const std::string& word) const {
    return FindIn(sections, word);
}

const RecordKind* RecordKinds::FindControlStyle(const std::string& word) const {
    return FindIn(controlStyles, word);
}

std::string RecordKinds::CreateFailText(int screenType) const {
    for (const auto* list : {&sections, &controlStyles})
        for (const RecordKind& kind : *list)
            if (kind.screenType == screenType) return kind.createFailText;
    return "";
}

bool RecordKinds::SetParser(const std::string& word, RecordParser parser) {
    if (word == controlHead.word) {
        controlHead.parser = parser;
        return true;
    }
    for (auto* list : {&sections, &controlStyles})
        for (RecordKind& kind : *list)
            if (kind.word == word) {
                kind.parser = parser;
                return true;
            }
    return false;
}

}  // namespace tolva
