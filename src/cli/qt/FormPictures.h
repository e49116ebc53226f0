#pragma once
// Pictures of the forms of a loaded design: one PNG a form, the device
// screen as the device shows it (160 by 160 device pixels, each an N by N
// square, in the device's greys), painted by the canvas's own painter from
// the same draw elements, without frame, grid or nodes.
#include <memory>
#include <string>
#include <vector>

namespace tolva {

class ctlTolvaScreen;
class KomaObject;
class ScreenPainter;

struct FormPicturesRequest {
    std::string folder;  // made when missing
    int scale = 1;       // image pixels a side of one device pixel
    std::string form;    // empty: every form, in the design's order
};

inline constexpr int kLeastPictureScale = 1;
inline constexpr int kMostPictureScale = 32;

struct FormPicturesResult {
    std::vector<std::string> written;  // the files, in the order written
    bool noSuchForm = false;           // the form asked for is not in the design
    std::string failure;               // empty when every picture was written
};

// Makes the pictures of one screen's forms, one after the other: the
// objects of each form are sorted out once, and the picture files the
// objects name are read once for all forms. The design must not change
// while a maker lives.
class FormPictureMaker {
public:
    FormPictureMaker(ctlTolvaScreen& screen, int scale);
    ~FormPictureMaker();

    // The PNG file's bytes of the screen's form of this number (from 1),
    // shown in turn as the editor's form list shows it; empty when there is
    // no such form.
    std::string Png(int formNumber);

private:
    ctlTolvaScreen& screen_;
    int scale_;
    std::unique_ptr<ScreenPainter> painter_;
    // The device screen painted on, one for every form: its paint engine
    // is made once.
    struct Canvas;
    std::unique_ptr<Canvas> canvas_;
    std::vector<std::vector<KomaObject*>> objects_;
};

// The file a form's picture goes to inside the folder: the form's name with
// anything but letters, digits, '_' and '-' made '_', then ".png".
std::string FormPictureFileName(const std::string& formName);

// Writes the pictures the request asks for. The screen is left showing the
// last form painted.
FormPicturesResult WriteFormPictures(ctlTolvaScreen& screen, const FormPicturesRequest& request);

}  // namespace tolva
