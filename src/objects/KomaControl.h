#pragma once
// KomaControl: what the control family (button, repeat button, push button,
// check box, popup trigger) shares. All of them are written as #CONTROL
// records with one common head and told apart by their control style word;
// the head's values (subtype, text, alignment, the three attributes) live
// here, and so do the writer of the head and the applying of its groups.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class KomaControl : public KomaObject {
public:
    // The control style: 0 button, 1 repeat button, 2 push button, 3 check
    // box, 4 popup trigger, from the stored word. A word that is not this
    // class's own gives 0; a stored "0" is reported as an unknown style.
    virtual int KOMAControlStyle();
    // The setter: the kind's own number stores its word; 0, the button's
    // number, shows "Unknown control style" on the other kinds; any other
    // number changes nothing.
    void KOMAControlStyle(int style);
    const std::string& KOMAControlStyleWord() const { return controlStyleWord_; }

    // --- the head's values ------------------------------------------------------
    const std::string& KOMAControlText() const { return controlText_; }
    virtual void KOMAControlText(const std::string& text);
    // "LEFT" 0, "CENTRE" 1, "RIGHT" 2; another number changes nothing.
    int KOMATextAlignment() const;
    void KOMATextAlignment(int alignment);
    const std::string& KOMATextAlignmentWord() const { return alignmentWord_; }
    const std::string& KOMAControlSubTypeWord() const { return subtypeWord_; }
    // The three attributes: booleans here, "TRUE" or "FALSE" in store.
    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = value ? "TRUE" : "FALSE"; }
    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = value ? "TRUE" : "FALSE"; }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = value ? "TRUE" : "FALSE"; }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // A control refuses a related table only while the value held is
    // negative, whatever the new one.
    void KOMARelatedTableID(long id) override;
    using KomaObject::KOMARelatedTableID;

    bool CopyModelFrom(const KomaObject& other) override;

protected:
    KomaControl(int screenType, int controlStyle, const std::string& controlStyleWord,
                int defaultWidth, int defaultHeight);

    void SetControlStyleWord(const std::string& word) { controlStyleWord_ = word; }
    void SetControlSubTypeWord(const std::string& word) { subtypeWord_ = word; }
    void SetTextAlignmentWord(const std::string& word) { alignmentWord_ = word; }

    // The comments a kind writes in its head: the one above the style word
    // ("// Always BUTTON"; a kind with none leaves it empty and no line is
    // written) and the one above the subtype word.
    struct HeadComments {
        std::string style;
        std::string subtype;
        // The comment above the width and height; one kind writes "//0 - 159".
        std::string size = "//0 - 160";
        // The comment above the text; a kind without it leaves it empty.
        std::string text = "//any text";
        // The comment above the three attributes; a kind without it leaves
        // it empty.
        std::string attributes = "//TRUE or FALSE";
    };
    // What every control copies into a cell: the place of every kind, then
    // subtype, text, alignment and the three attributes.
    void CopyCellHeadFrom(const KomaControl& other);

    // Appends the banner and the head of the record, "#CONTROL" to the
    // "(BO)CONTROL_ATTR.VISIBLE=" line.
    void AppendControlHead(LineList& lines, const HeadComments& comments) const;

    // Applies the head's groups 0 to 5 of a loaded record, each through its
    // setter: name, X, Y, the size (as screen size), subtype (by the kind's
    // word conversion), text, alignment, the three attributes. Throws
    // RuntimeFailure on a number that cannot be converted.
    void ApplyControlHeadGroups(const GroupList& groups);
    // The subtype of a kind from its word; each kind converts its own words,
    // until then the word is kept as it stands.
    virtual void ApplySubTypeWord(const std::string& word) { subtypeWord_ = word; }

private:
    int ownControlStyle_;
    std::string ownControlStyleWord_;
    std::string controlStyleWord_;
    std::string subtypeWord_;
    std::string controlText_;
    std::string alignmentWord_ = "CENTRE";
    std::string enableWord_ = "TRUE";
    std::string activeWord_ = "TRUE";
    std::string visibleWord_ = "TRUE";
};

}  // namespace tolva
