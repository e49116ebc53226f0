#pragma once
// EntryState: the device's run-time state of a text entry (the Textbox, the
// Field), on top of the kind's own base, which the editor only stores and
// passes on: the longest text allowed, the insert point, the highlighted
// range, and the flags active, enabled, modified, highlight shown, insert
// point shown and visible, each held as the word "TRUE" or "FALSE" its
// record carries. None of it is checked against the text.
#include <string>

namespace tolva {

template <class Base>
class EntryState : public Base {
public:
    using Base::Base;

    // The longest text, 0 or more: a negative one is refused with "Invalid
    // value" under the application's title.
    int KOMAMaxNumChars() const { return maxNumChars_; }
    void KOMAMaxNumChars(int count) {
        if (count < 0) {
            this->Message("Invalid value");
            return;
        }
        maxNumChars_ = count;
    }
    // Positions in the text, kept as given.
    int KOMAInsertPointCharPos() const { return insertPointCharPos_; }
    void KOMAInsertPointCharPos(int position) { insertPointCharPos_ = position; }
    int KOMAHighlightStartCharPos() const { return highlightStart_; }
    void KOMAHighlightStartCharPos(int position) { highlightStart_ = position; }
    int KOMAHighlightEndCharPos() const { return highlightEnd_; }
    void KOMAHighlightEndCharPos(int position) { highlightEnd_ = position; }

    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = FlagWord(value); }
    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = FlagWord(value); }
    bool KOMADirty() const { return dirtyWord_ == "TRUE"; }
    void KOMADirty(bool value) { dirtyWord_ = FlagWord(value); }
    bool KOMAHighlight() const { return highlightWord_ == "TRUE"; }
    void KOMAHighlight(bool value) { highlightWord_ = FlagWord(value); }
    bool KOMAInsertPointVisible() const { return insertPointVisibleWord_ == "TRUE"; }
    void KOMAInsertPointVisible(bool value) { insertPointVisibleWord_ = FlagWord(value); }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = FlagWord(value); }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMADirtyWord() const { return dirtyWord_; }
    const std::string& KOMAHighlightWord() const { return highlightWord_; }
    const std::string& KOMAInsertPointVisibleWord() const { return insertPointVisibleWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

protected:
    static const char* FlagWord(bool value) { return value ? "TRUE" : "FALSE"; }

    void CopyEntryStateFrom(const EntryState& other) {
        maxNumChars_ = other.maxNumChars_;
        insertPointCharPos_ = other.insertPointCharPos_;
        highlightStart_ = other.highlightStart_;
        highlightEnd_ = other.highlightEnd_;
        activeWord_ = other.activeWord_;
        enableWord_ = other.enableWord_;
        dirtyWord_ = other.dirtyWord_;
        highlightWord_ = other.highlightWord_;
        insertPointVisibleWord_ = other.insertPointVisibleWord_;
        visibleWord_ = other.visibleWord_;
    }

    int maxNumChars_ = 256;
    int insertPointCharPos_ = 0;
    int highlightStart_ = 0;
    int highlightEnd_ = 0;
    std::string activeWord_ = "TRUE";
    std::string enableWord_ = "TRUE";
    std::string dirtyWord_ = "FALSE";
    std::string highlightWord_ = "FALSE";
    std::string insertPointVisibleWord_ = "FALSE";
    std::string visibleWord_ = "TRUE";
};

}  // namespace tolva
