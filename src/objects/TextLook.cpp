#include "objects/TextLook.h"

namespace tolva {

DrawColor ScreenColorOfWord(const std::string& word) {
    if (word == "COLOR_WHITE") return kWhite;
    if (word == "COLOR_GREY1") return {0xC0, 0xC0, 0xC0};
    if (word == "COLOR_GREY2") return {0x80, 0x80, 0x80};
    return kBlack;
}

}  // namespace tolva
