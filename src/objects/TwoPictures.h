#pragma once
// TwoPictures: the two pictures of a kind that keeps one for each of two
// states (the Bitmap, the Checkbox), on top of the kind's own base. It holds
// their places and sizes as the record carries them, their depths, and the
// setters of those with their refusals. Which file each picture shows, and
// what loading one does to the object, stay with the kind.
#include <string>

#include "objects/PictureFiles.h"

namespace tolva {

template <class Base>
class TwoPictures : public Base {
public:
    using Base::Base;

    // X and Y 0 to 159, width and height 0 to 160; a refusal is told under
    // the object's name, but for the second height's.
    int KOMABitmap1X() const { return bitmap1_.x; }
    void KOMABitmap1X(int x) {
        if (InRange(x, 159, "Bitmap1X")) bitmap1_.x = x;
    }
    int KOMABitmap1Y() const { return bitmap1_.y; }
    void KOMABitmap1Y(int y) {
        if (InRange(y, 159, "Bitmap1Y")) bitmap1_.y = y;
    }
    int KOMABitmap1Width() const { return bitmap1_.width; }
    void KOMABitmap1Width(int width) {
        if (InRange(width, 160, "Bitmap1Width")) bitmap1_.width = width;
    }
    int KOMABitmap1Height() const { return bitmap1_.height; }
    void KOMABitmap1Height(int height) {
        if (InRange(height, 160, "Bitmap1Height")) bitmap1_.height = height;
    }
    int KOMABitmap2X() const { return bitmap2_.x; }
    void KOMABitmap2X(int x) {
        if (InRange(x, 159, "Bitmap2X")) bitmap2_.x = x;
    }
    int KOMABitmap2Y() const { return bitmap2_.y; }
    void KOMABitmap2Y(int y) {
        if (InRange(y, 159, "Bitmap2Y")) bitmap2_.y = y;
    }
    int KOMABitmap2Width() const { return bitmap2_.width; }
    void KOMABitmap2Width(int width) {
        if (InRange(width, 160, "Bitmap2Width")) bitmap2_.width = width;
    }
    int KOMABitmap2Height() const { return bitmap2_.height; }
    void KOMABitmap2Height(int height) {
        // Unlike its three fellows: a plain message under the default title.
        if (height < 0 || height > 160) {
            this->Message("Invalid value");
            return;
        }
        bitmap2_.height = height;
    }

    // Bits per pixel, 2 or 4; another number changes nothing.
    int KOMABitmap1Depth() const { return bitmap1_.depth; }
    void KOMABitmap1Depth(int depth) {
        if (depth == 2 || depth == 4) bitmap1_.depth = depth;
    }
    int KOMABitmap2Depth() const { return bitmap2_.depth; }
    void KOMABitmap2Depth(int depth) {
        if (depth == 2 || depth == 4) bitmap2_.depth = depth;
    }

protected:
    ObjectPicture& Of(int which) { return which == 1 ? bitmap1_ : bitmap2_; }

    // What a cell takes of both pictures: file and size, with the picture
    // shown; places and depths stay.
    void CopyCellPicturesFrom(const TwoPictures& other) {
        for (int which = 1; which <= 2; ++which) {
            ObjectPicture& mine = Of(which);
            const ObjectPicture& theirs = which == 1 ? other.bitmap1_ : other.bitmap2_;
            mine.file = theirs.file;
            mine.width = theirs.width;
            mine.height = theirs.height;
            mine.loaded = theirs.loaded;
            mine.pixelWidth = theirs.pixelWidth;
            mine.pixelHeight = theirs.pixelHeight;
        }
    }

    ObjectPicture bitmap1_;
    ObjectPicture bitmap2_;

private:
    bool InRange(int value, int high, const char* what) {
        if (value >= 0 && value <= high) return true;
        this->Message(PicturePlaceRefusal(what, value), this->KOMAName());
        return false;
    }
};

}  // namespace tolva
