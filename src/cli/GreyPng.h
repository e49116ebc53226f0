#pragma once
// A PNG file of an 8-bit grey picture, written directly: signature, IHDR,
// one IDAT of the rows (each with filter byte 0) compressed by zlib at its
// fastest level, IEND. The pictures of the forms are mostly runs of one
// grey, which need no row filters to pack small, and the general writer's
// search for the best filter of every row costs more than the painting.
#include <cstdint>
#include <string>

namespace tolva {

// The file's bytes of a picture of width x height greys, row by row, `stride`
// bytes from one row to the next; empty when zlib fails.
std::string GreyPng(const uint8_t* pixels, int width, int height, int stride);

}  // namespace tolva
