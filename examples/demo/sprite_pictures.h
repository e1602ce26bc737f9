#ifndef KVT_DEMO_SPRITE_PICTURES_H
#define KVT_DEMO_SPRITE_PICTURES_H

#include <kvt/sprite/sprite.h>

namespace kvt_demo {

// The frames of the text scene's shape sprite, by index.
enum ShapeFrame { kBallFrame, kPinFrame, kFlagFrame, kGemFrame, kBubbleFrame, kShapeFrames };

// Fills an empty sprite with the demo's own pictures, each anchored where
// it should stand: the ball on its centre, the pin on its tip, the flag on
// the foot of its pole, the gem on its top left corner and the speech
// bubble on a point left of and below itself. Sprites normally come from
// a file through Load; the frames are public fields, so a program can
// also hand over surfaces it drew, and FreeFrames releases them alike.
// False, with the sprite still empty, when a surface cannot be made.
bool CreateShapeSprite(KVT_Sprite *sprite);

// The frames of the icon sprite, by index, and the square they sit in.
enum IconFrame { kBallIcon, kPinIcon, kFlagIcon, kGemIcon, kIconFrames };
const int kIconBox = 44;

// Fills an empty sprite with the ball, pin, flag and gem, each centred in
// a kIconBox square whose top left corner is the frame's anchor: drawn at
// a point, every icon fills the same square there, as buttons want. False,
// with the sprite still empty, when a surface cannot be made.
bool CreateIconSprite(KVT_Sprite *sprite);

} // namespace kvt_demo

#endif
