#include "CollisionGraphs.h"

void CollisionGraphs::BuildGraphList(const Canvas&, const CollisionSetup&, int16_t) {}
void CollisionGraphs::LayoutGraphs(const Canvas&, const CollisionSetup&, int16_t) {}
void CollisionGraphs::GraphRange(const CollisionSetup&, CollisionState&, int16_t, int16_t, float, float) {}
void CollisionGraphs::GraphExtremes(CollisionState&, int16_t, int16_t) {}
void CollisionGraphs::DrawGraphFrames(Canvas&, int16_t) {}
void CollisionGraphs::StartGraphClocks(CollisionState&) {}
void CollisionGraphs::DrawGraphStep(Canvas&, const CollisionSetup&, CollisionState&) {}
void CollisionGraphs::RedrawGraphs(Canvas&, const CollisionSetup&, CollisionState&) {}
void CollisionGraphs::ZoomGraph(Canvas&, const CollisionSetup&, CollisionState&, float, float) {}
int16_t CollisionGraphs::PanelAt(float) const { return 0; }
bool CollisionGraphs::GraphDrawable(int16_t) const { return false; }
