#pragma once

#include <KxSubject/KxMotionSpeed.h>

#include <cstddef>

/// The tuning values of the analysis that change its results, or that several classes, tests or benchmarks share. A
/// value that hardly matters within its range is a constant beside the code that uses it. A comment begins with the
/// range in which the value makes sense and ends with its origin:
/// - trial: chosen by trial on real footage;
/// - clips: chosen by the score of "Against ground truth" in Docs/ANALYSIS.md;
/// - speech: taken from a study on the same clips ("Who speaks" there), and kept;
/// - talk: chosen by trial on the clips of "Who speaks" there;
/// - cross: `Benchmarks/crossvalidate` chose it on some clips and scored it on the others;
/// - shots: chosen on the videos of "Shot boundaries" there;
/// - chosen: hardly matters within its range, but is shared.
/// Lengths in `Px` are pixels of the working picture.
struct KxSubjectOptions {
    struct Sampling {
        int workingLongSidePx = 320;    ///< 240 to 480; trial: 160 loses small subjects
        double samplesPerSecond = 10.0; ///< 5 to 30; trial: more gave no gain
    } sampling;

    struct Shots {
        double greyFloor = 9.0;    ///< 4 to 20 of 255, mean difference of small grey pictures; trial
        double colourFloor = 0.18; ///< 0.1 to 0.4, part of the colour histogram that moved; trial
        double greyRatio = 2.2;    ///< 1.5 to 4 times the percentile of the neighbours; trial
        double colourRatio = 2.0;  ///< 1.5 to 4 times the percentile of the neighbours; trial
        double percentile = 0.75;  ///< 0.5 to 0.9; shots: 0.8 misses runs of short shots
        int neighbours = 10;       ///< 5 to 20 pictures on each side; trial
        /// 0.1 to 0.5: of two boundaries nearer than this the stronger stays: five frames of 30; shots
        double minimumShotSeconds = 0.165;
        /// 0.5 to 0.9: a jump to a picture more similar in structure (a correlation) is a change of light; shots
        double lightSimilarity = 0.7;
        double returnRatio = 0.5;     ///< 0.2 to 0.8 of a jump: a picture that differs by less has returned; shots
        double flashSimilarity = 0.2; ///< 0 to 0.5: the similarity in structure that it also needs after a flash; shots
        double returnSimilarity = 0.35; ///< 0.1 to 0.6: the same after longer; shots
        double flashLight = 8.0;        ///< 4 to 20 of 255 above both sides: what may be a long flash; shots

        /// Dissolves, wipes and fades. Distances are parts of the distance of the two ends.
        struct Blends {
            double plainContrast = 12.0;     ///< 5 to 20 of 255: a picture with a smaller deviation is plain; shots
            double floor = 22.0;             ///< 10 to 40 of 255: ends nearer than this belong to one shot; shots
            double middleShare = 0.25;       ///< 0.1 to 0.5: the middle is at least so much of both ends; shots
            double misfit = 0.47;            ///< 0.3 to 0.7, of the middle from the blend of the ends; shots
            double similarity = 0.5;         ///< 0.3 to 0.8: ends more similar in structure belong to one shot; shots
            double contrastExcess = 0.15;    ///< 0.05 to 0.4 of the ends' variance, over the blend's; shots
            double outside = 0.25;           ///< 0.1 to 0.4 of the points, outside what is between the ends'; shots
            double back = 0.3;               ///< 0.1 to 0.5 of the way, in reverse, in total; shots
            double step = 0.5;               ///< 0.3 to 0.7 of the way, in one step: more is a cut; shots
            double fadeMisfit = 0.25;        ///< 0.1 to 0.4, the mean of half a fade's pictures; shots
            double fadeStep = 0.8;           ///< 0.5 to 0.9: `step` for half a fade, which may have two pictures; shots
            double jitterWeight = 0.15;      ///< 0 to 0.5, of the movement (jitter) before and after; shots
            double minimumConfidence = 0.47; ///< 0.3 to 0.6; confidence is 1 less misfit and weighted jitter; shots
            double movedSimilarity = 0.85;   ///< 0.7 to 0.95: halves that each fit a movement so well are one; shots
            double returnRatio = 0.5;        ///< 0.2 to 0.8: a picture nearer than this has returned; shots
            std::size_t leastPictures = 4;   ///< 3 to 8, from end to end; shots
            std::size_t wipeLeastPictures = 8; ///< 4 to 15: the same for a wipe; shots
            double wipeFloor = 45.0;           ///< 20 to 80: `floor` for a wipe; shots
            double wipeMisfit = 0.62;          ///< 0.4 to 0.8: `misfit` for a wipe; shots
            double wipeSimilarity = 0.25;      ///< 0.1 to 0.5: `similarity` for a wipe; shots
            double wipeOutside = 0.2;          ///< 0.1 to 0.4: `outside` for a wipe; shots
            /// 0.35 to 0.55 of the picture: ends that differ in less of it show something that moves in front of what
            /// stays; half, by definition
            double differingPart = 0.5;
            /// 0.15 to 0.4 of the textured blocks in common: the ends belong to one shot; shots: dissolves have 0.1,
            /// a few up to 0.3; a lamp that is switched on leaves little more
            double inCommon = 0.31;
            /// 0.5 to 0.7: the same near a wipe, where the ends still have a part of both shots; shots
            double wipeInCommon = 0.6;
        } blends;
    } shots;

    /// What two pictures have in common. Blocks are a tenth of the longer side.
    struct Scenes {
        double leastContrast = 2.0;   ///< 1 to 4 of 255: a block with a smaller deviation shows nothing; shots
        double blockSimilarity = 0.7; ///< 0.5 to 0.9, a correlation: a more similar block is the same; shots
        int reachPx = 3;              ///< 1 to 5 of 160 each way, from where the camera's movement puts a block; shots
        double foundByChance = 2.5;   ///< 2 to 4 blocks that two scenes may have in common; shots
    } scenes;

    struct Bars {
        int blackLevel = 22;        ///< 16 to 40 of 255; trial
        double brightShare = 0.02;  ///< 0 to 0.05 of a row or column may be brighter in a bar; trial (98th percentile)
        double minimumShare = 0.03; ///< 0.01 to 0.1 of the side; trial
    } bars;

    /// Lengths in pixels are of pictures of half the size.
    struct Camera {
        int cellsAlong = 8;            ///< 4 to 12 parts of the longer side, each with corners of its own; clips
        int cellsAcross = 5;           ///< 3 to 8 of the shorter side; clips
        int cornersInCell = 4;         ///< 4 to 10; clips: 6 the same; about 150 in all
        double cornerQuality = 0.0005; ///< 0 to 0.01 of the best corner; low for plain backgrounds; clips
        int cornerDistancePx = 2;      ///< 1 to 3 each way in which a corner is the strongest; clips
        double inlierPx = 0.5;         ///< 0.25 to 1.25; clips
        double agreeingShare = 0.08;   ///< 0.05 to 0.13 of the corners; clips: across cuts less, in a shot more
    } camera;

    struct Motion {
        double differenceFloor = 2.0; ///< 1 to 4 of 255, taken for noise; trial
        double gradientFloor = 4.0;   ///< 2 to 8 of 255 a pixel; trial
        double toleratedPx = 1.0;     ///< 0 to 1.5: movement below is taken for an error of the camera estimate; clips
        double fullPx = 2.0;          ///< 1 to 5: movement above counts no more, or one fast edge dominates; clips
        double blurSigmaPx = 3.0;     ///< 2 to 5; trial
        int borderPx = 9;             ///< 5 to 15: parallax and warping cause false motion there; trial
    } motion;

    /// Lengths in pixels are of the motion map, which has half of the picture's.
    struct Movers {
        double threshold = 0.2;  ///< 0.1 to 0.4 of the motion map: a peak below is noise; clips
        int levels = 4;          ///< 1 to 6 levels of segmentation, each tracked separately; clips
        double levelRatio = 1.2; ///< 1.1 to 1.4, from one level to the next; clips
        /// 0.25 to 0.5 of the peak, the middle level: the area above it around the peak is one mover; clips
        double extentShare = 0.345;
        int peakDistancePx = 4; ///< 2 to 8 each way in which a peak is the highest; clips
        /// 0.4 to 1.2 of the width: a mover is searched for within this distance of its predicted position; clips
        double reachPerSecond = 0.76;
        double reachBySize = 0.35; ///< 0 to 0.6 of the root of its area, on top; clips
        double mostGrowth = 1.5;   ///< 0.7 to 2, logarithm of the areas' ratio; clips
        double growthCost = 0.3;   ///< 0 to 1 of that logarithm, against a distance of one reach; clips
        double ageGain = 0.02;     ///< 0 to 0.05 per sample seen: an older track is preferred; clips
        double velocityGain = 0.4; ///< 0.2 to 0.8 of what is new; clips
        double areaGain = 0.4;     ///< 0.2 to 0.8 of what is new; clips
        int mostMisses = 3;        ///< 1 to 6 samples in a row; clips
        int leastHits = 4;         ///< 3 to 8 samples seen, of a mover that counts at all; clips
    } movers;

    struct Saliency {
        int sidePx = 64;          ///< 48 to 96, of the square the spectrum is taken of; trial
        double blurSigmaPx = 2.5; ///< 1.5 to 4, of that square; trial
    } saliency;

    struct Faces {
        double frontalPeriodSeconds = 0.7; ///< 0.3 to 1 between searches of the whole picture; clips: 1.0 the same
        double profilePeriodSeconds = 1.2; ///< 0.5 to 2: the same for one of the two sides in turn; clips
        double followPeriodSeconds = 0.2;  ///< 0.1 to 0.4 between two looks near a known face; clips
        double alonePeriodSeconds = 0.4;   ///< 0.2 to 0.6: the same for a single face that is sure; clips: cost
        int sidesAtFirst = 4;              ///< 4 to 8 looks from the sides in turn at a new scene; clips: 3 miss faces
        double settledFactor = 3.0;        ///< 1 to 4 times; for the sides also while a face is followed; clips: cost
        double searchScaleFactor = 1.4;    ///< 1.2 to 1.5 from window to window in the whole picture; clips: cost
        int mostCandidates = 24;           ///< 10 to 50 candidates examined finely; bounds the cost of a crowd; chosen
        int frontalNeighbours = 3;         ///< 2 to 6 raw hits near a candidate that make a face; clips
        int profileNeighbours = 4;         ///< 2 to 6 raw hits near a candidate that make a face; clips
        int followNeighbours = 2;          ///< 1 to 4 raw hits that keep a known face; clips: with 4 it is often lost
        int minimumPx = 24;                ///< 20 to 40, smallest face looked for; chosen
        int profileMinimumPx = 32;         ///< 24 to 40, the same from the sides, where most of the cost is; talk
        int followedAtOnce = 6;            ///< 3 to 12 faces; bounds the cost of a crowd; chosen
        double sameShare = 0.6;            ///< 0.4 to 0.8 of the size: nearer boxes of similar size are one; chosen
        int missesToDrop = 3;              ///< 2 to 6 looks in a row; clips
        int agreeing = 2;                  ///< 1 to 3 other looks in the window that must see the face; trial
    } faces;

    /// People and animals that the object detector finds.
    struct Detections {
        double settledPeriodSeconds = 2.0; ///< 1 to 2: the same while the largest thing stays; clips: cost
        double settledOverlap = 0.6; ///< 0.5 to 0.8 of its boxes in two looks, intersection over union: it stays; clips
        double emptyFloor = 0.025;   ///< 0.01 to 0.1, the weight that gives half of the possible evidence; cross
        double personUpperShare =
            0.45;                     ///< 0.3 to 1 of a person's height: the part that counts in a tall picture; chosen
        double reachBySize = 0.5;     ///< 0.3 to 1 of its side: how far a box may be from the next look's; chosen
        double reachPerSecond = 0.15; ///< 0.05 to 0.3 of the picture, on top; chosen
        double mostGrowth = 1.0;      ///< 0.5 to 1.5, logarithm of the areas' ratio; chosen
    } detections;

    /// The looks at mouths while two or more faces are there.
    struct Mouths {
        double smoothingSeconds = 0.36; ///< 0.2 to 0.5, of the face's place; speech
        double sizeSeconds = 1.5;       ///< 0.5 to 2, of its size, which the cascades find less exactly; talk
        double growth = 1.1;            ///< 1 to 1.3 times the box is cut out; speech
        double mostShiftPx = 3.0;       ///< 2 to 5 of 44 across the face: a larger translation is an error; speech
    } mouths;

    /// Who speaks. Steps are a 25th of a second.
    struct Speech {
        double aboveFloor = 9.0;       ///< 6 to 12 dB above the quiet, of speech; speech
        double belowLoud = 28.0;       ///< 20 to 35 dB: speech is no farther below the loud; speech
        double gapSeconds = 0.32;      ///< 0.2 to 0.5: a shorter pause is speech; speech
        double meanSeconds = 1.5;      ///< 1 to 2 each way, of a local mean; speech
        double deviationSeconds = 3.0; ///< 2 to 5 each way, of a local deviation; speech
        double openingSeconds = 0.6;   ///< 0.4 to 1: the mean opening over this time is no movement; speech
        double openingWeight = 1.5;    ///< 1 to 2 of the opening, against the movement; talk
        double productScale = 1.6;     ///< 1 to 2; speech
        int mostLagBefore = 4;         ///< 2 to 8 steps that the sound may be later than the lips; speech
        double activityWeight = 0.5;   ///< 0.4 to 0.8, against the correlation; talk
        double changeCost = 13.0;      ///< 9 to 16 of a change of speaker, in steps of evidence; talk
        double leastMargin = 0.05;     ///< 0.02 to 0.1, mean evidence ahead of the next face; speech
    } speech;

    struct Evidence {
        double motionWeight = 0.5;      ///< 0.3 to 1; clips
        double moverWeight = 0.45;      ///< 0.3 to 0.6; clips
        double saliencyWeight = 0.39;   ///< 0.2 to 0.6; cross
        double faceWeight = 1.0;        ///< 0.7 to 1.5; trial
        double detectionWeight = 2.0;   ///< 1 to 3.5; cross
        double emptyFloor = 0.01;       ///< 0.005 to 0.02 of the area: an empty map weighs little; trial
        double concentration = 1.6;     ///< 1 to 2, power on the combined evidence; clips
        double windowFlatAcross = 0.7;  ///< 0.4 to 1 of the scoring window; the rest is a squared cosine; cross
        double centrePriorAcross = 0.3; ///< 0.15 to 0.45 for a crop that moves sideways; cross
        double centrePriorUpDown = 4.0; ///< 1 to 6 for a crop that moves up and down, where evidence misleads; clips
    } evidence;

    /// Following what a person points at.
    struct Follow {
        double goodConfidence = 0.3; ///< 0.2 to 0.5: below, the thing counts as lost; chosen
        /// 0.3 to 0.6, the intersection over the union of the box that a person drew, perhaps with what the thing
        /// holds, and a detection of it; trial
        double firstOverlap = 0.4;
        double stillOverlap = 0.3; ///< 0.2 to 0.4: the same for a tracked box, which may have drifted; chosen
        double sameOverlap = 0.6;  ///< 0.5 to 0.8: a tracked box that overlaps more is left as it is; chosen
        double stillGrowth = 0.7;  ///< 0.5 to 1 a second, logarithm of the areas' ratio of two looks; chosen
        double gateWidth = 0.15;   ///< 0.1 to 0.25: evidence farther from the track counts less; trial
        double gateGrowth = 0.3;   ///< 0.2 to 0.5 a second without a good picture; trial
        double denial = 0.3;       ///< 0 to 0.7 of the other evidence is denied by full confidence; cross
        double weight = 2.0;       ///< 1 to 4 of the tracked box; trial
        double seedWeight = 4.0;   ///< 2 to 8 of a box that a person drew; chosen
        double seedSeconds = 0.35; ///< 0.2 to 1 each way, for which that holds; chosen
        /// 0.05 to 0.15 of a box's side: what is nearer to its edge may not be of the thing; chosen
        double boxError = 0.1;
        /// 0.8 to 1 of the thing, over the shot: where the automatic crop holds more, it stays as it is; chosen
        double heldShare = 0.95;
        /// 0.7 to 0.85 of a box that was guessed around a click: where the automatic crop holds more, it stays; trial
        double heldGuess = 0.75;
        double smoothingSeconds = 0.4; ///< 0.3 to 0.6, of a path that follows, at most; trial
        double avoidedShare = 0.1;     ///< 0 to 0.3 of the evidence under an avoided box is left; chosen
        double avoidedMargin = 0.04;   ///< 0.02 to 0.06 beside that box: what is measured there is blurred; chosen
        double avoidedGain = 3.0;      ///< 1 to 5 times the rest of the evidence counts, at most; chosen
        double pointWidth = 0.14;      ///< 0.1 to 0.2 of the picture: a box for a point; trial
        double pointHeight = 0.28;     ///< 0.2 to 0.4 of the picture; trial
        double blockSeconds = 20.0;    ///< 10 to 60 of pictures are kept to go backward: 50 MB; chosen
    } follow;

    struct Path {
        /// 2 to 5 of the tracker, a width, over the square root of a sample's seconds; less for a crop that is wider
        /// than 9:16, in proportion; cross: all score alike, and more is calmer; from 4.5 on fast subjects are lost
        double moveCost = 4.0;
        double speedWeight = 0.35;       ///< 0.25 to 0.5 on the first derivative; cross
        double accelerationWeight = 0.3; ///< 0.1 to 0.45 on the second: more gives fewer, longer pans; cross
        double jerkWeight = 0.2;         ///< 0.08 to 0.3 on the third: more gives longer eases; cross
        /// 10 to 120: after a longer pause in the pictures a new path starts, as at a cut; chosen: bounds the work
        double longestHoldSeconds = 30.0;
        int iterations = 60; ///< 40 to 100; clips: 1600 draw random walks up to 0.04 widths elsewhere, these alike
        /// 0.003 to 0.01 widths a second below which the smoothed path is made exactly static; cross: beyond, it
        /// leaves the subject
        double stillSpeed = 0.006;
    } path;

    /// The path's reaction at one motion speed. Widths are the picture's unless the crop's is named. Origin: trial. The
    /// range of a static crop is in crop widths: half of it cannot let the subject leave the crop. In a crop wider than
    /// 9:16 they are widths of a 9:16 crop: two things can be at its edges, which are no farther from them. The holds
    /// of Slow and Fast, relative to Auto's, scale the cost of a move: Fast follows what crosses the picture in two
    /// seconds.
    struct Reaction {
        double stillRange;       ///< 0.05 to 0.3 crop widths: the crop is static while the subject's range is less
        double deadZone;         ///< 0.03 to 0.3 crop widths
        double smoothingSeconds; ///< 0.2 to 3; 1 means the weights of Path
        double holdSeconds;      ///< 0.3 to 2 before the subject changes
    };
    Reaction slow{0.25, 0.20, 1.5, 0.9};
    Reaction automatic{0.18, 0.15, 0.5, 0.8};
    Reaction fast{0.075, 0.05, 0.2, 0.36};

    const Reaction& For(KxMotionSpeed speed) const
    {
        return speed == KxMotionSpeed::Fast ? fast : speed == KxMotionSpeed::Slow ? slow : automatic;
    }
};
