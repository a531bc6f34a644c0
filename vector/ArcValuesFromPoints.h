#pragma once

/**
 * Computes the circle through two points on which the arc between them subtends `angle` degrees.
 *
 * The y axis points down, as on screen. The two resulting angles are those of the arc's ends, in
 * degrees, counter-clockwise on screen from the positive x axis. Coinciding points give a circle of
 * radius 0.
 *
 * The centre is the intersection of the two radii, whose directions follow from the isosceles
 * triangle over the chord. Single precision is intentional: existing documents depend on it.
 */
void ArcValuesFromPoints(float x1, float y1, float x2, float y2, float angle, float *radius,
                         float *startAngle, float *endAngle, float *centreX, float *centreY);
