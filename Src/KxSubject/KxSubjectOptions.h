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
        double greyFloor = 9.0;          ///< of 255, mean difference of small grey pictures; study
        double colourFloor = 0.18;       ///< 0 to 1, part of the colour histogram that moved; study
        double greyRatio = 2.2;          ///< times the percentile of the neighbours; study
        double colourRatio = 2.0;        ///< times the percentile of the neighbours; study
        double percentile = 0.8;         ///< 0 to 1; study
        int neighbours = 10;             ///< pictures on each side; study
        double minimumShotSeconds = 0.3; ///< of two cuts nearer than this the stronger stays; study tried none shorter
        double flashRatio = 0.5; ///< 0 to 1: a jump whose far sides differ by less than this part of it is a flash
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

    struct Motion {
        double gapSeconds = 1.0 / 12.0; ///< between the two pictures compared; study
        double gapMaximumSeconds = 0.6; ///< beyond it a scene has changed too much to be compared
        int leastFollowed = 12;         ///< corners; with fewer the camera is taken to stand
        int corners = 200;              ///< study
        double cornerQuality = 0.003;   ///< of the best corner; low, so that the background has its share; measured
        double cornerDistancePx = 10.0; ///< least distance between two corners; measured
        double inlierPx = 1.0;          ///< 0.5 to 2.5; measured (study 1.5)
        double differenceFloor = 2.0;   ///< of 255, taken for noise; study
        double gradientFloor = 4.0;     ///< of 255 a pixel; study
        double toleratedPx = 1.0;       ///< movement below is taken for a camera followed badly; measured
        double fullPx = 2.0;            ///< movement above counts no more, or one fast edge outshouts all; measured
        double blurSigmaPx = 3.0;       ///< study
        int borderPx = 9;               ///< parallax and warping fire there; study
    } motion;

    struct Saliency {
        double flatRange = 4.0;   ///< of 255: a picture with less between its darkest and brightest part shows nothing
        int sidePx = 64;          ///< of the square the spectrum is taken of; study
        double blurSigmaPx = 2.5; ///< of that square
    } saliency;

    struct Faces {
        double frontalPeriodSeconds = 0.5; ///< between two looks over the whole picture; study: 3 Hz for 10 costs 0.003
        double profilePeriodSeconds = 0.8; ///< the same for one of the two sides in turn, while no face is followed
        double modelPeriodSeconds = 0.2;   ///< the same for the neural detector
        double followPeriodSeconds = 0.2;  ///< between two looks near a known face
        double scaleFactor = 1.25;         ///< 1.05 to 1.3 from one window size to the next; measured: cost
        double followScaleFactor = 1.1;    ///< the same near a known face: a coarse step has too few sizes to agree
        int frontalNeighbours = 3;         ///< raw hits that make a face
        int profileNeighbours = 4;         ///< raw hits that make a face
        int minimumPx = 24;                ///< smallest face looked for
        double modelThreshold = 0.7;       ///< 0 to 1, the neural detector's own score
        int followedAtOnce = 6;            ///< faces; bounds the cost of a crowd
        double sameShare = 0.6;     ///< of the size: two boxes nearer than this, and alike by it in size, are one face
        int missesToDrop = 3;       ///< looks in a row
        double windowSeconds = 0.6; ///< each way: looks that vote on a face; study: 6 neighbours, mean over 0.5 s
        int agreeing = 2;           ///< other looks in the window that must see the face; study
        double zeroWeightShare = 0.05; ///< of the shorter side; study
        double fullWeightShare = 0.15; ///< of the shorter side; study
        double growDown = 0.5;         ///< of the face's height; study
    } faces;

    struct Evidence {
        double motionWeight = 1.0;   ///< study
        double saliencyWeight = 0.5; ///< study
        double faceWeight = 1.0;     ///< study
        double emptyFloor = 0.01;    ///< of the area: makes a nearly empty map weigh little; study
        double windowFlat = 0.3; ///< flat part of the window that scores a centre, the rest is cosine squared; study
        double centrePriorAcross = 0.12; ///< for a crop that moves sideways; study
        double centrePriorUpDown = 1.0;  ///< for a crop that moves up and down, where saliency misleads; study
    } evidence;

    struct Path {
        double moveCost = 1.0;        ///< of the tracker, a width, over the square root of a sample's seconds; study
        double stepsPerSecond = 10.0; ///< nodes of the smoothed path
        double speedWeight = 0.4;     ///< on the first derivative; study
        double accelerationWeight = 0.15; ///< on the second; study
        double hasteWeight = 1.0; ///< on what exceeds the top speed, which no rule forbids: the subject may need it
        double jerkWeight = 0.12; ///< on the third; measured (study 0.03)
        int iterations = 60;      ///< measured: 1600 draw random walks up to 0.04 widths elsewhere, 40 to 100 all alike
        double stillSpeed = 0.004; ///< widths a second below which the smoothed path is made to stand exactly
        double stillTrim = 0.05;   ///< part of the samples at each end of the range that does not count
    } path;

    /// How the path reacts under one motion speed; human tracks. Widths are the picture's unless the crop's is named.
    /// The range for standing still was found in picture widths; half of it, in crop widths, cannot let the subject
    /// out.
    struct Reaction {
        double stillRange;       ///< crop widths: the crop stands still while the subject's range stays under
        double deadZone;         ///< crop widths
        double topSpeed;         ///< widths a second
        double smoothingSeconds; ///< 1 stands for the weights of Path
        double holdSeconds;      ///< before the subject changes
    };
    Reaction slow{0.25, 0.20, 0.08, 2.0, 1.5};
    Reaction automatic{0.15, 0.12, 0.20, 1.0, 0.8};
    Reaction fast{0.075, 0.05, 0.45, 0.35, 0.4};

    const Reaction& For(KxMotionSpeed speed) const
    {
        return speed == KxMotionSpeed::Fast ? fast : speed == KxMotionSpeed::Slow ? slow : automatic;
    }
};
