#pragma once
// KomaControl: what the control family (button, repeat button, push button,
// check box, popup trigger) shares. All of them are written as #CONTROL
// records and told apart by their control style word.
#include <string>

#include "document/KomaObject.h"

namespace tolva {

class KomaControl : public KomaObject {
public:
    // The control style: 0 button, 1 repeat button, 2 push button, 3 check
    // box, 4 popup trigger, from the stored word. A word that is not this
    // class's own gives 0; a stored "0" is reported as an unknown style.
    virtual int KOMAControlStyle();
    const std::string& KOMAControlStyleWord() const { return controlStyleWord_; }

    bool CopyModelFrom(const KomaObject& other) override;

protected:
    KomaControl(int screenType, int controlStyle, const std::string& controlStyleWord,
                int defaultWidth, int defaultHeight);

    void SetControlStyleWord(const std::string& word) { controlStyleWord_ = word; }

private:
    int ownControlStyle_;
    std::string ownControlStyleWord_;
    std::string controlStyleWord_;
};

}  // namespace tolva
