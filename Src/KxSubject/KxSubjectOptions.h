#pragma once

#include "KxSubjectAnalyzer.h"

/// Every tuning value of the analysis. "Study" in an origin means the measurement on 30 real clips that the engine
/// began from, "human tracks" the 2,400 crop tracks drawn by people, "measured" our own trials. Lengths in `Px` are
/// pixels of the working picture.
struct KxSubjectOptions {
    struct Sampling {
        int workingLongSidePx = 320;    ///< 240 to 480; study: 160 loses small subjects
        int workingShortSideMinPx = 32; ///< keeps a very flat picture usable
        double samplesPerSecond = 10.0; ///< 5 to 30; study: more gave no gain
        double wantedPicturesPerSecond =
            60.0; ///< pictures beyond this rate only cost; 25 or more keeps cuts on their frame
    } sampling;

    struct Shots {
        double greyFloor = 9.0;            ///< of 255, mean difference of small grey pictures; study
        double colourFloor = 0.18;         ///< 0 to 1, part of the colour histogram that moved; study
        double greyRatio = 2.2;            ///< times the percentile of the neighbours; study
        double colourRatio = 2.0;          ///< times the percentile of the neighbours; study
        double percentile = 0.75;          ///< 0 to 1; measured: 0.8 misses runs of short shots (study 0.8)
        int neighbours = 10;               ///< pictures on each side; study
        double minimumShotSeconds = 0.165; ///< of two boundaries nearer than this the stronger stays: five frames of 30
        double lightLikeness = 0.7;   ///< 0 to 1: a jump to a picture more alike in structure is one of light; measured
        double returnRatio = 0.5;     ///< 0 to 1, of a jump: a picture is back that differs by less; measured
        double flashLikeness = 0.2;   ///< -1 to 1: and that is so much alike in structure, after a flash; measured
        double returnLikeness = 0.35; ///< the same after longer; measured
        double flashLight = 8.0;      ///< of 255 above both sides: pictures that may be a long flash; measured

        /// Dissolves, wipes and fades. Distances are parts of the distance of the two ends; all measured.
        struct Blends {
            double plainContrast = 12.0;       ///< of 255: a picture with a smaller standard deviation is plain
            double floor = 22.0;               ///< of 255, root mean square: ends nearer than this are one shot's
            double middleShare = 0.25;         ///< 0 to 0.5: the middle picture is at least so much of both ends
            double misfit = 0.47;              ///< of the middle picture from the blend of the ends
            double likeness = 0.5;             ///< -1 to 1: ends more alike in structure are one shot's
            double contrastExcess = 0.15;      ///< of the ends' variance, of the middle picture's from the blend's
            double outside = 0.25;             ///< of the points outside what is between those of the ends
            double back = 0.3;                 ///< of the way, gone back in all
            double step = 0.5;                 ///< of the way, gone at once: more is a cut
            double fadeMisfit = 0.25;          ///< the mean of half a fade's pictures
            double fadeStep = 0.8;             ///< the same for half a fade, which may have two pictures
            double unrestWeight = 0.15;        ///< of the movement before and after, beside the misfit
            double doubt = 0.53;               ///< most of both together
            double movedLikeness = 0.85;       ///< -1 to 1: two halves that are each a movement this well are one
            double returnRatio = 0.5;          ///< a picture is back that is nearer than this
            std::size_t leastPictures = 4;     ///< from end to end
            std::size_t wipeLeastPictures = 8; ///< the same for a wipe
            double wipeFloor = 45.0;           ///< for a wipe in place of `floor`
            double wipeMisfit = 0.62;          ///< for a wipe in place of `misfit`
            double wipeLikeness = 0.25;        ///< for a wipe in place of `likeness`
            double wipeOutside = 0.2;          ///< for a wipe in place of `outside`
        } blends;
    } shots;

    struct Bars {
        int blackLevel = 22;        ///< of 255; study
        double brightShare = 0.02;  ///< part of a row or column that may be brighter in a bar; study (98th percentile)
        double minimumShare = 0.03; ///< of the side; study
        double maximumShare = 0.4;  ///< of the side: more is a dark picture rather than a bar
        double asymmetryShare =
            0.02;        ///< of the side: opposite bars differ by no more (a dark floor or sky has no twin)
        int insetPx = 1; ///< the row at a bar's edge is half bar, half picture
    } bars;

    struct Camera {
        double gapMaximumSeconds = 0.6; ///< between two pictures compared; beyond it a scene has changed too much
        int cellsAlong = 8;             ///< parts of the longer side that give corners of their own; measured
        int cellsAcross = 5;            ///< of the shorter side; measured
        int cornersInCell = 6;          ///< study: about 200 in all
        double cornerQuality = 0.0005;  ///< of the best corner; low, so that a plain background has its share; measured
        int cornerDistancePx = 3;       ///< each way in which a corner is the strongest
        double inlierPx = 1.0;          ///< 0.5 to 2.5; measured (study 1.5)
        int leastFollowed = 12;         ///< corners; a picture with fewer says nothing, the camera is taken to stand
        double agreeingShare = 0.08;    ///< of the corners; measured: 0.05 at most across cuts, 0.13 and more in a shot
    } camera;

    struct Motion {
        double differenceFloor = 2.0; ///< of 255, taken for noise; study
        double gradientFloor = 4.0;   ///< of 255 a pixel; study
        double toleratedPx = 1.0;     ///< movement below is taken for a camera followed badly; measured
        double fullPx = 2.0;          ///< movement above counts no more, or one fast edge outshouts all; measured
        double blurSigmaPx = 3.0;     ///< study
        int borderPx = 9;             ///< parallax and warping fire there; study
    } motion;

    /// Measured, all of them; lengths in pixels are of the map halved.
    struct Movers {
        double threshold = 0.2;       ///< of the motion map: a peak below is noise
        int levels = 4;               ///< heights at which movers are cut out; each is followed by itself
        double levelRatio = 1.2;      ///< from one height to the next
        double extentShare = 0.345;   ///< of the peak, the middle height: what lies above it around it is one mover
        int peakDistancePx = 4;       ///< each way in which a peak is the highest
        int mostAtOnce = 10;          ///< bounds the cost of a crowd
        double reachPerSecond = 0.76; ///< of the width: how far from where it is expected a mover is looked for
        double reachBySize = 0.35;    ///< of the root of its area, on top
        double mostGrowth = 1.5;      ///< logarithm of the areas' ratio
        double growthCost = 0.3;      ///< of that logarithm, against a distance of one reach
        double ageGain = 0.02;        ///< for each sample seen: an old track is believed before a young one
        double velocityGain = 0.4;    ///< 0 to 1, of what is new
        double areaGain = 0.4;        ///< 0 to 1, of what is new
        int mostMisses = 3;           ///< samples in a row
        int leastHits = 4;            ///< samples seen, of a mover that counts at all
        double secondsAtZero = 0.3;   ///< of being seen, that give no confidence yet
        double secondsToFull = 1.5;   ///< beyond, for full confidence
        double fullTravel = 0.15;     ///< of the width, before the background, for full confidence
        double leastConfidence = 0.05;
        double areaPower = 0.5;  ///< a mover weighs as the side of its box does, not as its area
        double emptyFloor = 0.1; ///< the sum of weights at which movers say half of what they have to say
    } movers;

    struct Saliency {
        double flatRange = 4.0;   ///< of 255: a picture with less between its darkest and brightest part shows nothing
        int sidePx = 64;          ///< of the square the spectrum is taken of; study
        double blurSigmaPx = 2.5; ///< of that square
    } saliency;

    struct Faces {
        double frontalPeriodSeconds = 0.7; ///< between two looks over the whole picture; measured: 1.0 the same
        double profilePeriodSeconds = 1.2; ///< the same for one of the two sides in turn
        double modelPeriodSeconds = 0.2;   ///< the same for the neural detector
        double followPeriodSeconds = 0.2;  ///< between two looks near a known face
        int sidesAtFirst = 4;              ///< looks from the sides in turn when a scene begins
        int settledLooks = 4; ///< looks over the whole picture in a row without a new face: then they are rarer
        double settledFactor =
            3.0; ///< times the periods above; for the sides also while a face is followed; measured: cost
        double scaleFactor = 1.15; ///< 1.05 to 1.3 from one window size to the next; measured: 1.25 misses profiles
        double followScaleFactor = 1.1; ///< the same near a known face: a coarse step has too few sizes to agree
        int frontalNeighbours = 3;      ///< raw hits that make a face
        int profileNeighbours = 4;      ///< raw hits that make a face
        int minimumPx = 24;             ///< smallest face looked for
        double modelThreshold = 0.7;    ///< 0 to 1, the neural detector's own score
        int followedAtOnce = 6;         ///< faces; bounds the cost of a crowd
        double sameShare = 0.6; ///< of the size: two boxes nearer than this, and alike by it in size, are one face
        int missesToDrop = 3;   ///< looks in a row
        double windowSeconds =
            2.0;          ///< each way: looks that vote on a face; measured: below 1.5 a face flickers with the finder
        int agreeing = 2; ///< other looks in the window that must see the face; study
        double zeroWeightShare = 0.05; ///< of the shorter side; study
        double fullWeightShare = 0.15; ///< of the shorter side; study
        double growDown = 0.5;         ///< of the face's height; study
    } faces;

    struct Evidence {
        double motionWeight = 0.5;          ///< measured (study 1.0, alone)
        double moverWeight = 0.45;          ///< measured
        double saliencyWeightAcross = 0.55; ///< measured (study 0.5)
        double saliencyWeightUpDown = 0.1;  ///< it misleads on tall pictures (study); measured
        double faceWeight = 1.0;            ///< study
        double emptyFloor = 0.01;           ///< of the area: makes a nearly empty map weigh little; study
        double windowFlatAcross = 0.5;   ///< flat part of the window that scores a centre, the rest is cosine squared
        double windowFlatUpDown = 0.9;   ///< flatter: a tall subject wants to be in, not to have its head in the middle
        double centrePriorAcross = 0.11; ///< for a crop that moves sideways; measured (study 0.12)
        double centrePriorUpDown = 4.0;  ///< for a crop that moves up and down, where evidence misleads; measured
    } evidence;

    struct Path {
        double moveCost =
            1.6; ///< of the tracker, a width, over the square root of a sample's seconds; measured (study 1.0)
        double stepsPerSecond = 10.0;     ///< nodes of the smoothed path
        double speedWeight = 0.35;        ///< on the first derivative; measured (study 0.4)
        double accelerationWeight = 0.12; ///< on the second; measured (study 0.15)
        double hasteWeight = 1.0;  ///< on what exceeds the top speed, which no rule forbids: the subject may need it
        double jerkWeight = 0.1;   ///< on the third; measured (study 0.03)
        double wallWeight = 200.0; ///< on leaving the places a crop can take; 1000 does the same
        int iterations = 60; ///< measured: 1600 draw random walks up to 0.04 widths elsewhere, 40 to 100 all alike
        double stillSpeed = 0.004; ///< widths a second below which the smoothed path is made to stand exactly
        double stillTrim = 0.05;   ///< part of the samples at each end of the range that does not count
    } path;

    /// How the path reacts under one motion speed; human tracks, but for two values. Widths are the picture's unless
    /// the crop's is named. The range for standing still was found in picture widths; half of it, in crop widths,
    /// cannot let the subject out, and a little more holds the crop where the range comes near. The hold of Fast is
    /// measured: with the 0.4 s of people the choice hops more and keeps less.
    struct Reaction {
        double stillRange;       ///< crop widths: the crop stands still while the subject's range stays under
        double deadZone;         ///< crop widths
        double topSpeed;         ///< widths a second
        double smoothingSeconds; ///< 1 stands for the weights of Path
        double holdSeconds;      ///< before the subject changes
    };
    Reaction slow{0.25, 0.20, 0.08, 2.0, 1.5};
    Reaction automatic{0.18, 0.12, 0.20, 1.0, 0.8};
    Reaction fast{0.075, 0.05, 0.45, 0.35, 0.6};

    const Reaction& For(KxMotionSpeed speed) const
    {
        return speed == KxMotionSpeed::Fast ? fast : speed == KxMotionSpeed::Slow ? slow : automatic;
    }
};
