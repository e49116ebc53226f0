// What a textbox takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/textbox/ctlKOMATextbox.h"

namespace tolva {

bool ctlKOMATextbox::CopyCellMembersFrom(const KomaObject& other) {
    const auto* textbox = dynamic_cast<const ctlKOMATextbox*>(&other);
    if (!textbox) return false;
    CopyCellPlaceFrom(*textbox);
    text_ = textbox->text_;
    styleWord_ = textbox->styleWord_;
    backlineWord_ = textbox->backlineWord_;
    CopyTextLookFrom(*textbox);
    CopyEntryStateFrom(*textbox);
    leftCharPos_ = textbox->leftCharPos_;
    rightCharPos_ = textbox->rightCharPos_;
    LayOut();
    return true;
}

}  // namespace tolva
