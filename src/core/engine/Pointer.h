#pragma once

#include <cstdint>

namespace qv {

class Program;

// The short state of a drag, shared by the window's pointer handlers and cPlay. Twips.
struct DragState {
  int16_t DownX = 0;      // pointer at the press, in the pressed sprite's frame
  int16_t StartLeft = 0;  // the pressed sprite's place at the press
  int16_t DownY = 0;
  int16_t StartTop = 0;
  int16_t DragCount = 0;  // cards riding above the pressed one; 0 for a single card
  bool Dragging = false;  // something hangs on the pointer
};

// The window's pointer events on card sprite i, with x and y in the sprite's frame.
// Both front ends call these, so a drag behaves the same in the window and in scripts.
void PointerPressed(Program& app, int i, double x, double y);
void PointerMoved(Program& app, int i, double x, double y);
void PointerReleased(Program& app, int i);
void PointerDoubleClicked(Program& app, int i);

// Whole gestures, for front ends and tests that have no mouse. The pointer takes hold
// of card i inside the strip of it that shows on a pile.
// Drags card i so that its left and top come to x, y, and lets go.
void DragCardTo(Program& app, int i, double x, double y);
// Drags card i so that it lies over the top card of tableau pile `pile`, or over its
// marker when the pile is empty, and lets go.
void DragCardToPile(Program& app, int i, int pile);
// A press and a release without moving.
void ClickCard(Program& app, int i);
// What a double-click brings: a press, a release and the double-click.
void DoubleClickCard(Program& app, int i);

}  // namespace qv
