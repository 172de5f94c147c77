#include "CollisionScene.h"

void CollisionScene::InitialiseGround(const Canvas&) {}
void CollisionScene::ComputeViewport(const Canvas&, const CollisionSetup&, const CollisionState&, int16_t) {}
float CollisionScene::ScreenX(float x) const { return ScaleXFactor * x + ScaleXOffset; }
float CollisionScene::ScreenY(float y) const { return ScaleYFactor * y + ScaleYOffset; }
void CollisionScene::DrawCollisionScene(Canvas&, const CollisionSetup&, CollisionState&, int16_t) {}
void CollisionScene::DrawBodies(Canvas&, const CollisionSetup&, CollisionState&, int16_t) {}
void CollisionScene::DrawVectors(Canvas&, const CollisionSetup&, CollisionState&, int16_t) {}
void CollisionScene::DrawVectorPair(Canvas&, int16_t, float, float, float, float, float, float) {}
void CollisionScene::DrawArrow(Canvas&, int16_t, float, float, float, float, float, float) {}
