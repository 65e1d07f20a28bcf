#pragma once

#include <KxSubject/KxMotionSpeed.h>

#include <cstddef>

/// Every tuning value of the analysis. The range in front of a comment is where a value makes sense. "Study" in an
/// origin means the measurement on 30 real clips that the engine began from, "human tracks" the 2,400 crop tracks drawn
/// by people, "measured" our own trials, "chosen" what hardly matters inside its range. Lengths in `Px` are pixels of
/// the working picture.
struct KxSubjectOptions {
    struct Sampling {
        int workingLongSidePx = 320;    ///< 240 to 480; study: 160 loses small subjects
        int workingShortSideMinPx = 32; ///< 16 to 64; keeps a very flat picture usable; chosen
        double samplesPerSecond = 10.0; ///< 5 to 30; study: more gave no gain
        /// 25 to 120: pictures beyond this rate only cost; 25 or more keeps cuts on their frame; chosen
        double wantedPicturesPerSecond = 60.0;
    } sampling;

    struct Shots {
        double greyFloor = 9.0;    ///< 4 to 20 of 255, mean difference of small grey pictures; study
        double colourFloor = 0.18; ///< 0.1 to 0.4, part of the colour histogram that moved; study
        double greyRatio = 2.2;    ///< 1.5 to 4 times the percentile of the neighbours; study
        double colourRatio = 2.0;  ///< 1.5 to 4 times the percentile of the neighbours; study
        double percentile = 0.75;  ///< 0.5 to 0.9; measured: 0.8 misses runs of short shots (study 0.8)
        int neighbours = 10;       ///< 5 to 20 pictures on each side; study
        /// 0.1 to 0.5: of two boundaries nearer than this the stronger stays: five frames of 30; measured
        double minimumShotSeconds = 0.165;
        /// 0.5 to 0.9: a jump to a picture more alike in structure (a correlation) is one of light; measured
        double lightSimilarity = 0.7;
        double returnRatio = 0.5;       ///< 0.2 to 0.8 of a jump: a picture is back that differs by less; measured
        double flashSimilarity = 0.2;   ///< 0 to 0.5: and that is so much alike in structure, after a flash; measured
        double returnSimilarity = 0.35; ///< 0.1 to 0.6: the same after longer; measured
        double flashLight = 8.0;        ///< 4 to 20 of 255 above both sides: what may be a long flash; measured

        /// Dissolves, wipes and fades. Distances are parts of the distance of the two ends.
        struct Blends {
            double plainContrast = 12.0;     ///< 5 to 20 of 255: a picture with a smaller deviation is plain; measured
            double floor = 22.0;             ///< 10 to 40 of 255: ends nearer than this are one shot's; measured
            double middleShare = 0.25;       ///< 0.1 to 0.5: the middle is at least so much of both ends; measured
            double misfit = 0.47;            ///< 0.3 to 0.7, of the middle from the blend of the ends; measured
            double similarity = 0.5;         ///< 0.3 to 0.8: ends more alike in structure are one shot's; measured
            double contrastExcess = 0.15;    ///< 0.05 to 0.4 of the ends' variance, over the blend's; measured
            double outside = 0.25;           ///< 0.1 to 0.4 of the points, outside what is between the ends'; measured
            double back = 0.3;               ///< 0.1 to 0.5 of the way, gone back in all; measured
            double step = 0.5;               ///< 0.3 to 0.7 of the way, gone at once: more is a cut; measured
            double fadeMisfit = 0.25;        ///< 0.1 to 0.4, the mean of half a fade's pictures; measured
            double fadeStep = 0.8;           ///< 0.5 to 0.9: `step` for half a fade, of two pictures maybe; measured
            double jitterWeight = 0.15;      ///< 0 to 0.5, of the movement (jitter) before and after; measured
            double minimumConfidence = 0.47; ///< 0.3 to 0.6; confidence is 1 less misfit and weighted jitter; measured
            double movedSimilarity = 0.85;   ///< 0.7 to 0.95: halves that are each a movement so well are one; measured
            double returnRatio = 0.5;        ///< 0.2 to 0.8: a picture is back that is nearer than this; measured
            std::size_t leastPictures = 4;   ///< 3 to 8, from end to end; measured
            std::size_t wipeLeastPictures = 8; ///< 4 to 15: the same for a wipe; measured
            double wipeFloor = 45.0;           ///< 20 to 80: `floor` for a wipe; measured
            double wipeMisfit = 0.62;          ///< 0.4 to 0.8: `misfit` for a wipe; measured
            double wipeSimilarity = 0.25;      ///< 0.1 to 0.5: `similarity` for a wipe; measured
            double wipeOutside = 0.2;          ///< 0.1 to 0.4: `outside` for a wipe; measured
        } blends;
    } shots;

    struct Bars {
        int blackLevel = 22;        ///< 16 to 40 of 255; study
        double brightShare = 0.02;  ///< 0 to 0.05 of a row or column may be brighter in a bar; study (98th percentile)
        double minimumShare = 0.03; ///< 0.01 to 0.1 of the side; study
        double maximumShare = 0.4;  ///< 0.2 to 0.45 of the side: more is a dark picture rather than a bar; chosen
        /// 0 to 0.05 of the side: opposite bars differ by no more (a dark floor or sky has no twin); chosen
        double asymmetryShare = 0.02;
        int insetPx = 1; ///< 0 to 2: the row at a bar's edge is half bar, half picture; chosen
    } bars;

    struct Camera {
        double gapMaximumSeconds = 0.6; ///< 0.3 to 1: beyond it a scene has changed too much to compare; chosen
        int cellsAlong = 8;             ///< 4 to 12 parts of the longer side, each with corners of its own; measured
        int cellsAcross = 5;            ///< 3 to 8 of the shorter side; measured
        int cornersInCell = 6;          ///< 4 to 10; study: about 200 in all
        double cornerQuality = 0.0005;  ///< 0 to 0.01 of the best corner; low for plain backgrounds; measured
        int cornerDistancePx = 3;       ///< 2 to 6 each way in which a corner is the strongest; measured
        double inlierPx = 1.0;          ///< 0.5 to 2.5; measured (study 1.5)
        int leastFollowed = 12;         ///< 6 to 30 corners; with fewer the camera is taken to stand; chosen
        double agreeingShare = 0.08;    ///< 0.05 to 0.13 of the corners; measured: across cuts less, in a shot more
    } camera;

    struct Motion {
        double differenceFloor = 2.0; ///< 1 to 4 of 255, taken for noise; study
        double gradientFloor = 4.0;   ///< 2 to 8 of 255 a pixel; study
        double toleratedPx = 1.0;     ///< 0 to 1.5: movement below is taken for a camera followed badly; measured
        double fullPx = 2.0;          ///< 1 to 5: movement above counts no more, or one fast edge outshouts; measured
        double blurSigmaPx = 3.0;     ///< 2 to 5; study
        int borderPx = 9;             ///< 5 to 15: parallax and warping fire there; study
    } motion;

    /// Lengths in pixels are of the map halved.
    struct Movers {
        double threshold = 0.2;  ///< 0.1 to 0.4 of the motion map: a peak below is noise; measured
        int levels = 4;          ///< 1 to 6 heights at which movers are cut out, each followed by itself; measured
        double levelRatio = 1.2; ///< 1.1 to 1.4, from one height to the next; measured
        /// 0.25 to 0.5 of the peak, the middle height: what lies above it around the peak is one mover; measured
        double extentShare = 0.345;
        int peakDistancePx = 4; ///< 2 to 8 each way in which a peak is the highest; measured
        int mostAtOnce = 10;    ///< 5 to 20 at a height; bounds the cost of a crowd; chosen
        /// 0.4 to 1.2 of the width: how far from where it is expected a mover is looked for; measured
        double reachPerSecond = 0.76;
        double reachBySize = 0.35;  ///< 0 to 0.6 of the root of its area, on top; measured
        double mostGrowth = 1.5;    ///< 0.7 to 2, logarithm of the areas' ratio; measured
        double growthCost = 0.3;    ///< 0 to 1 of that logarithm, against a distance of one reach; measured
        double ageGain = 0.02;      ///< 0 to 0.05 a sample seen: an old track is believed before a young one; measured
        double velocityGain = 0.4;  ///< 0.2 to 0.8 of what is new; measured
        double areaGain = 0.4;      ///< 0.2 to 0.8 of what is new; measured
        int mostMisses = 3;         ///< 1 to 6 samples in a row; measured
        int leastHits = 4;          ///< 3 to 8 samples seen, of a mover that counts at all; measured
        double secondsAtZero = 0.3; ///< 0 to 1 of being seen, that give no confidence yet; measured
        double secondsToFull = 1.5; ///< 0.5 to 3 beyond, for full confidence; measured
        double fullTravel = 0.15;   ///< 0.1 to 0.3 of the width, before the background, for the same; measured
        double leastConfidence = 0.05; ///< 0 to 0.2: below, a mover is forgotten; chosen
        double areaPower = 0.5;        ///< 0.4 to 0.6: a mover weighs as its box's side, not as its area; measured
        double emptyFloor = 0.1;       ///< 0.05 to 0.2, the weights that say half of what can be said; measured
    } movers;

    struct Saliency {
        double flatRange = 4.0;   ///< 2 to 10 of 255 from darkest to brightest: less shows nothing; chosen
        int sidePx = 64;          ///< 48 to 96, of the square the spectrum is taken of; study
        double blurSigmaPx = 2.5; ///< 1.5 to 4, of that square; study
    } saliency;

    struct Faces {
        double frontalPeriodSeconds = 0.7; ///< 0.3 to 1 between looks over the whole picture; measured: 1.0 the same
        double profilePeriodSeconds = 1.2; ///< 0.5 to 2: the same for one of the two sides in turn; measured
        double modelPeriodSeconds = 0.2;   ///< 0.1 to 0.5: the same for the neural detector; chosen
        double followPeriodSeconds = 0.2;  ///< 0.1 to 0.4 between two looks near a known face; measured
        int sidesAtFirst = 4;       ///< 4 to 8 looks from the sides in turn at a new scene; measured: 3 miss faces
        int settledLooks = 4;       ///< 2 to 8 over the whole picture without a new face: then they are rarer; chosen
        double settledFactor = 3.0; ///< 1 to 4 times; for the sides also while a face is followed; measured: cost
        double searchScaleFactor = 1.4; ///< 1.2 to 1.5 from window to window in the whole picture; measured: cost
        int mostSuspects = 24;          ///< 10 to 50 places of it looked at finely; bounds the cost of a crowd; chosen
        double nearScaleFactor = 1.1;   ///< 1.05 to 1.2 near a suspect or known face: coarse, too few agree; chosen
        int frontalNeighbours = 3;      ///< 2 to 6 raw hits near a suspect that make a face; measured
        int profileNeighbours = 4;      ///< 2 to 6 raw hits near a suspect that make a face; measured
        int followNeighbours = 2;       ///< 1 to 4 raw hits that keep a known face; measured: with 4 it is often lost
        int minimumPx = 24;             ///< 20 to 40, smallest face looked for; chosen
        double modelThreshold = 0.7;    ///< 0.5 to 0.9, the neural detector's own score; chosen
        int followedAtOnce = 6;         ///< 3 to 12 faces; bounds the cost of a crowd; chosen
        double sameShare = 0.6; ///< 0.4 to 0.8 of the size: boxes nearer than this, and alike by it, are one; chosen
        int missesToDrop = 3;   ///< 2 to 6 looks in a row; measured
        double windowSeconds = 2.0;    ///< 1.5 to 3 each way: looks that vote; measured: below, a face flickers
        int agreeing = 2;              ///< 1 to 3 other looks in the window that must see the face; study
        double zeroWeightShare = 0.05; ///< 0 to 0.1 of the shorter side; study
        double fullWeightShare = 0.15; ///< 0.1 to 0.25 of the shorter side; study
        double growDown = 0.5;         ///< 0 to 1 of the face's height; study
    } faces;

    struct Evidence {
        double motionWeight = 0.5;          ///< 0.3 to 1; measured (study 1.0, alone)
        double moverWeight = 0.45;          ///< 0.3 to 0.6; measured
        double saliencyWeightAcross = 0.65; ///< 0.5 to 0.8; measured (study 0.5)
        double saliencyWeightUpDown = 0.1;  ///< 0 to 0.3: it misleads on tall pictures (study); measured
        double faceWeight = 1.0;            ///< 0.7 to 1.5; study
        double emptyFloor = 0.01;           ///< 0.005 to 0.02 of the area: an empty map weighs little; study
        double concentration = 1.6;         ///< 1 to 2, power on what all signals say together; measured
        double windowFlatAcross = 0.55;     ///< 0.3 to 0.7 of the scoring window, else cosine squared; measured
        double windowFlatUpDown =
            0.9; ///< 0.5 to 1: a tall subject wants to be in, not its head in the middle; measured
        double centrePriorAcross = 0.11; ///< 0.08 to 0.15 for a crop that moves sideways; measured (study 0.12)
        double centrePriorUpDown = 4.0;  ///< 1 to 6 for one that moves up and down, where evidence misleads; measured
    } evidence;

    struct Path {
        /// 1.3 to 2.3 of the tracker, a width, over the square root of a sample's seconds; measured (study 1.0)
        double moveCost = 1.8;
        double stepsPerSecond = 10.0;     ///< 5 to 20 nodes of the smoothed path; chosen
        double speedWeight = 0.35;        ///< 0.25 to 0.5 on the first derivative; measured (study 0.4)
        double accelerationWeight = 0.12; ///< 0.08 to 0.2 on the second; measured (study 0.15)
        double jerkWeight = 0.1;          ///< 0.03 to 0.2 on the third; measured (study 0.03)
        /// 0 to 5 on what exceeds the top speed, which no rule forbids: the subject may need it; chosen
        double overspeedWeight = 1.0;
        double boundsWeight = 200.0; ///< 50 to 1000 on leaving the places a crop can take; 1000 does the same
        /// 10 to 120: after a longer pause in the pictures the path starts anew, as at a cut; chosen: bounds the work
        double longestHoldSeconds = 30.0;
        int iterations = 60; ///< 40 to 100; measured: 1600 draw random walks up to 0.04 widths elsewhere, these alike
        /// 0.001 to 0.01 widths a second below which the smoothed path is made to stand exactly; chosen
        double stillSpeed = 0.004;
        double stillTrim = 0.05; ///< 0 to 0.1 of the samples at each end of the range, that do not count; chosen
    } path;

    /// How the path reacts under one motion speed; human tracks, but for two values. Widths are the picture's unless
    /// the crop's is named. The range for standing still was found in picture widths; half of it, in crop widths,
    /// cannot let the subject out, and a little more holds the crop where the range comes near. The hold of Fast is
    /// measured: with the 0.4 s of people the choice hops more and keeps less.
    struct Reaction {
        double stillRange;       ///< 0.05 to 0.3 crop widths: the crop stands still while the subject's range is less
        double deadZone;         ///< 0.03 to 0.3 crop widths
        double topSpeed;         ///< 0.05 to 0.6 widths a second
        double smoothingSeconds; ///< 0.2 to 3; 1 stands for the weights of Path
        double holdSeconds;      ///< 0.3 to 2 before the subject changes
    };
    Reaction slow{0.25, 0.20, 0.08, 2.0, 1.5};
    Reaction automatic{0.19, 0.12, 0.20, 1.0, 0.8};
    Reaction fast{0.075, 0.05, 0.45, 0.35, 0.6};

    const Reaction& For(KxMotionSpeed speed) const
    {
        return speed == KxMotionSpeed::Fast ? fast : speed == KxMotionSpeed::Slow ? slow : automatic;
    }
};
