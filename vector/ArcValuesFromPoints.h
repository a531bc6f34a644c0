#pragma once

/**
 * The circle through two points on which the arc between them subtends `angle` degrees.
 *
 * The y axis points down, as on screen. The two resulting angles are those of the arc's ends, in
 * degrees, counter-clockwise as the eye sees it from the positive x axis. With equal x the chord
 * is vertical; points that coincide give a circle of radius 0 round them.
 *
 * The centre is where the two radii cross. They leave the chord's ends at angles that follow from
 * the isosceles triangle over the chord, so this is plain geometry; it is reckoned in single
 * precision, which is what documents are measured against.
 */
void ArcValuesFromPoints(float x1, float y1, float x2, float y2, float angle, float *radius,
                         float *startAngle, float *endAngle, float *centreX, float *centreY);
