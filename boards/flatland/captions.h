// The texts of the square board's own, to the character (frame/captions.h
// holds those it shares).
#pragma once

#include <array>

#include "frame/captions.h"

namespace vrask::flatland {

// The bare name of each game mode, as New shows it; a chosen mode shows it
// after "Game = ".
inline constexpr std::array<const char*, 6> kGameNames{
    "Ombrel", "Dorvel", "Vrask", "Super Vrask", "Super Vrask Plus", "Ribbon Vrask"};

}  // namespace vrask::flatland
