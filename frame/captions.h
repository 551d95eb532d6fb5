// The texts that more than one board shows, to the character.
#pragma once

#include <span>
#include <string>

namespace vrask {

inline constexpr const char* kClickALine = "Click a line to begin playing";
inline constexpr const char* kClickACircle = "Click a circle to begin playing";
// The program's own move on the last circle.
inline constexpr const char* kVraskMove = "Vrask!";
inline constexpr const char* kLastMove = "Last move: ";

inline constexpr const char* kInvalidMove = "Invalid move!";
inline constexpr const char* kBluePlayersTurn = "Blue player's turn";
inline constexpr const char* kRedPlayersTurn = "Red player's turn";

inline std::string movesLeft(int n) {
  return std::to_string(n) + " moves left";
}

// The hints of Ombrel, which count the lines that leave no cell at three
// sides.
inline constexpr const char* kHintForOmbrelOnly = "This hint is for the Ombrel game only.";
inline constexpr const char* kNoGoodMovesLeft = "No good moves left";
inline constexpr const char* kNoNonScoringMovesLeft = "No non-scoring moves left";

inline std::string nonScoringMovesLeft(int n) {
  return std::to_string(n) + " non-scoring moves left";
}

// A game as a board's games menu offers it: its entry there, and the name
// the board shows once it is chosen.
struct GameTitle {
  const char* entry;
  const char* name;
};
// The games that the boards of cubes offer under the same words.
inline constexpr GameTitle kZorvexSquaresTitle{"Zorvex  (Squares)", "Game = Zorvex (Squares)"};
inline constexpr GameTitle kVraskClassicTitle{"Vrask  (Classic)", "Game = Vrask (Classic)"};
inline constexpr GameTitle kVraskSetCountTitle{"Vrask  (Set count)", "Game = Vrask (Set count)"};
inline constexpr GameTitle kVraskMoveTitle{"Vrask  (Set count with Vrask move)",
                                           "Game = Vrask (Set count with Vrask move)"};
inline constexpr GameTitle kSuperClassicTitle{"Super Vrask Plus  (Classic)",
                                              "Game = Super Vrask Plus (Classic)"};
inline constexpr GameTitle kSuperSetCountTitle{"Super Vrask Plus  (Set count)",
                                               "Game = Super Vrask Plus (Set count)"};
inline constexpr GameTitle kSuperVraskMoveTitle{
    "Super Vrask Plus  (Set count with Vrask move)",
    "Game = Super Vrask Plus (Set count with Vrask move)"};

// A board's games by the index of their menu entry.
struct GameEntry {
  int index;
  GameTitle title;
};
// The title of the game at `index`; nullptr when `games` has none there.
inline const GameTitle* titleOf(std::span<const GameEntry> games, int index) {
  for (const GameEntry& game : games) {
    if (game.index == index) return &game.title;
  }
  return nullptr;
}

}  // namespace vrask
