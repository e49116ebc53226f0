#include "cli/qt/FormPictures.h"

#include <QImage>
#include <QPainter>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "canvas/qt/ScreenPainter.h"
#include "cli/GreyPng.h"
#include "objects/form/ctlKOMAForm.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

namespace {

constexpr int kDeviceSide = 160;

}  // namespace

struct FormPictureMaker::Canvas {
    QImage image{kDeviceSide, kDeviceSide, QImage::Format_RGB32};
};

FormPictureMaker::FormPictureMaker(ctlTolvaScreen& screen, int scale)
    : screen_(screen), scale_(scale),
      painter_(std::make_unique<ScreenPainter>(screen.PCTwipsToTolvaPixels())),
      canvas_(std::make_unique<Canvas>()), objects_(screen.ObjectsOfEachForm()) {
    // One image pixel a device pixel, the origin at the device area's corner.
    const CanvasRect device = screen.DeviceAreaRect();
    painter_->SetOrigin(device.left, device.top);
    painter_->SetDeviceGreys(true, screen.PCTwipsToTolvaPixels());
}

FormPictureMaker::~FormPictureMaker() = default;

std::string FormPictureMaker::Png(int formNumber) {
    if (formNumber < 1 || formNumber > static_cast<int>(objects_.size())) return {};
    const std::string formName = screen_.FormAt(formNumber)->KOMAName();
    const std::string shown = screen_.CurrentDesignForm();
    if (shown != formName) {
        screen_.HideForm(shown);
        screen_.ShowForm(formName);
    }
    QImage& device = canvas_->image;
    device.fill(Qt::white);
    QPainter on(&device);
    painter_->PaintDevice(on, screen_,
                          ctlTolvaScreen::OnShowInStackingOrder(objects_[formNumber - 1]));
    on.end();
    // Every pixel is grey: one byte a pixel says it all. Then each pixel an
    // N by N square, as a device pixel looks close up.
    QImage image = device.convertToFormat(QImage::Format_Grayscale8);
    if (scale_ != 1)
        image = image.scaled(kDeviceSide * scale_, kDeviceSide * scale_, Qt::IgnoreAspectRatio,
                             Qt::FastTransformation);
    return GreyPng(image.constBits(), image.width(), image.height(),
                   static_cast<int>(image.bytesPerLine()));
}

std::string FormPictureFileName(const std::string& formName) {
    std::string file = formName.empty() ? std::string("_") : formName;
    for (char& c : file) {
        const bool kept = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                          (c >= '0' && c <= '9') || c == '_' || c == '-';
        if (!kept) c = '_';
    }
    return file + ".png";
}

FormPicturesResult WriteFormPictures(ctlTolvaScreen& screen, const FormPicturesRequest& request) {
    FormPicturesResult result;
    std::vector<int> forms;
    for (int i = 1; i <= screen.NumForms(); ++i)
        if (request.form.empty() || screen.FormAt(i)->KOMAName() == request.form) forms.push_back(i);
    if (!request.form.empty() && forms.empty()) {
        result.noSuchForm = true;
        result.failure = "no form named " + request.form;
        return result;
    }

    std::error_code error;
    const std::filesystem::path folder(request.folder);
    std::filesystem::create_directories(folder, error);
    if (error || !std::filesystem::is_directory(folder)) {
        result.failure = "cannot make the folder " + request.folder;
        return result;
    }

    FormPictureMaker maker(screen, request.scale);
    for (int form : forms) {
        const std::string png = maker.Png(form);
        const std::string file =
            (folder / FormPictureFileName(screen.FormAt(form)->KOMAName())).string();
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(png.data(), static_cast<std::streamsize>(png.size()));
        out.close();
        if (png.empty() || !out) {
            result.failure = "cannot write " + file;
            return result;
        }
        result.written.push_back(file);
    }
    return result;
}

}  // namespace tolva
