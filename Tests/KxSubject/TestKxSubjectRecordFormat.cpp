#include <KxSubject/KxSubjectRecordFormat.h>

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace
{

KxPackedProfile Profile(int peak)
{
    KxSignalProfile profile;
    profile.Add(peak / 10.0, peak / 10.0 + 0.2, 0.8);
    return KxPackedProfile(profile);
}

KxSubjectRecord Record()
{
    KxSubjectRecord record;
    record.source = {1920, 1080, 23.976, 100};
    record.workingSizePx = {320, 180};
    record.content = {0.0, 0.125, 1.0, 0.75};
    record.boundaries = {{30, 30, 30, KxShotBoundaryKind::Cut}, {60, 55, 66, KxShotBoundaryKind::Dissolve}};
    record.prints = {{0, 1, 2}, {60, 0xFFFFFFFFU, 0}};
    for (int i = 0; i < 40; ++i) {
        record.samples.push_back({2 * i, {Profile(1), Profile(2)}, {Profile(3), Profile(i % 8)}});
    }
    record.movers = {{3, 1.5F, 0.2F, {{10, 20, 30, 40}, {12, 20, 32, 40}}}, {38, 0.5F, 0.1F, {{0, 0, 255, 255}}}};
    record.faces = {{{{0.5F, 10, 20, 30, 40}, {0.75F, 0, 0, 0, 0}, {1.0F, -2, 20, 30, 40}}}};
    record.models = {{"a.onnx", "0123"}, {"", std::string(64, 'f')}};
    record.looks = {{0, {{0.1F, 0.2F, 0.3F, 0.4F, 0.9F, KxDetectionKind::Vehicle}}}, {25, {}}};
    record.faces.push_back(record.faces[0]);
    record.mouths = {{0, {{4, 2, 700, 300, -120}, {6, 2, 65535, 0, 32767}}}, {1, {{4, 255, 0, 0, -32768}}}};
    record.sound = {{50, {-7000, -2345, 0}}, {53, {-100}}};
    return record;
}

bool IsRead(const KxSubjectRecord& record)
{
    return KxSubjectRecordFormat::Read(KxSubjectRecordFormat::Write(record)).has_value();
}

} // namespace

TEST(KxSubjectRecordFormat, ARecordComesBackAsItWasWritten)
{
    const KxSubjectRecord written = Record();
    const std::string bytes = KxSubjectRecordFormat::Write(written);
    const std::optional<KxSubjectRecord> read = KxSubjectRecordFormat::Read(bytes);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->source.frameRate, 23.976);
    EXPECT_EQ(read->source.frameCount, 100);
    EXPECT_EQ(read->workingSizePx, (KxIntSize{320, 180}));
    EXPECT_EQ(read->content.y, 0.125);
    EXPECT_EQ(read->boundaries[1].last, 66);
    EXPECT_EQ(read->boundaries[1].kind, KxShotBoundaryKind::Dissolve);
    EXPECT_EQ(read->samples[5].saliency[1].Unpacked().share, written.samples[5].saliency[1].Unpacked().share);
    EXPECT_EQ(read->prints[1].Bits(), 0xFFFFFFFF00000000U);
    EXPECT_EQ(read->samples[39].frame, 78);
    EXPECT_EQ(read->movers[0].travel, 0.2F);
    EXPECT_EQ(read->movers[1].boxes, written.movers[1].boxes);
    EXPECT_EQ(read->faces[0].looks[2].x, -2);
    EXPECT_EQ(read->looks[0].found[0].kind, KxDetectionKind::Vehicle);
    EXPECT_EQ(read->mouths[0].looks[1].movement, 65535);
    EXPECT_EQ(read->mouths[1].looks[0].opening, -32768);
    EXPECT_EQ(read->sound[0].levels, written.sound[0].levels);
    EXPECT_EQ(read->models[0].name, "a.onnx");
    EXPECT_EQ(read->models[1].sha256, written.models[1].sha256);
    EXPECT_EQ(KxSubjectRecordFormat::Write(*read), bytes) << "everything comes back";
}

TEST(KxSubjectRecordFormat, AnEmptyRecordComesBack)
{
    KxSubjectRecord record;
    record.source = {16, 16, 25.0, 0};
    record.workingSizePx = {320, 320};
    EXPECT_TRUE(IsRead(record));
}

TEST(KxSubjectRecordFormat, CutOffBytesAreRefusedAtEveryLength)
{
    const std::string bytes = KxSubjectRecordFormat::Write(Record());
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_FALSE(KxSubjectRecordFormat::Read(bytes.substr(0, length))) << length;
    }
    EXPECT_FALSE(KxSubjectRecordFormat::Read(bytes + 'x'));
}

TEST(KxSubjectRecordFormat, OneChangedByteIsRefusedWhereverItIs)
{
    std::string bytes = KxSubjectRecordFormat::Write(Record());
    for (char& byte : bytes) {
        byte = static_cast<char>(byte ^ 0x10);
        EXPECT_FALSE(KxSubjectRecordFormat::Read(bytes)) << &byte - bytes.data();
        byte = static_cast<char>(byte ^ 0x10);
    }
}

TEST(KxSubjectRecordFormat, WhatNoObserverSeesIsRefused)
{
    ASSERT_TRUE(IsRead(Record()));
    const float infinity = std::numeric_limits<float>::infinity();
    const std::vector<std::function<void(KxSubjectRecord&)>> damages = {
        [](KxSubjectRecord& record) { record.source.pictureWidthPx = 0; },
        [](KxSubjectRecord& record) { record.source.frameRate = std::numeric_limits<double>::quiet_NaN(); },
        [](KxSubjectRecord& record) { record.source.frameCount = -1; },
        [](KxSubjectRecord& record) { record.source.frameCount = 78; },
        [](KxSubjectRecord& record) { record.workingSizePx.height = -5; },
        [](KxSubjectRecord& record) { record.content.width = 0.0; },
        [](KxSubjectRecord& record) { record.content.y = std::numeric_limits<double>::quiet_NaN(); },
        [](KxSubjectRecord& record) { record.content.height = 0.9; },
        [](KxSubjectRecord& record) { std::swap(record.boundaries[0], record.boundaries[1]); },
        [](KxSubjectRecord& record) { record.boundaries[1].frame = 100; },
        [](KxSubjectRecord& record) { record.boundaries[0].frame = 0; },
        [](KxSubjectRecord& record) { record.boundaries[1].first = 67; },
        [](KxSubjectRecord& record) { record.boundaries[1].kind = static_cast<KxShotBoundaryKind>(3); },
        [](KxSubjectRecord& record) { record.prints[1].frame = 0; },
        [](KxSubjectRecord& record) { record.samples[7].frame = record.samples[6].frame; },
        [](KxSubjectRecord& record) { record.samples[0].frame = -1; },
        [=](KxSubjectRecord& record) { record.samples[0].motion[0] = KxPackedProfile(infinity, {}); },
        [](KxSubjectRecord& record) { record.samples[0].motion[0] = KxPackedProfile(-0.1F, {}); },
        [](KxSubjectRecord& record) { std::swap(record.movers[0], record.movers[1]); },
        [](KxSubjectRecord& record) { record.movers[0].firstSample = -1; },
        [](KxSubjectRecord& record) { record.movers[1].firstSample = 40; },
        [](KxSubjectRecord& record) { record.movers[0].boxes.clear(); },
        [](KxSubjectRecord& record) {
            record.movers[0].boxes[0] = {30, 20, 10, 40};
        },
        [](KxSubjectRecord& record) { record.movers[0].travel = -1.0F; },
        [](KxSubjectRecord& record) { record.faces[0].looks.clear(); },
        [](KxSubjectRecord& record) { record.faces[0].looks[1].timeSeconds = 0.4F; },
        [=](KxSubjectRecord& record) { record.faces[0].looks[2].timeSeconds = infinity; },
        [](KxSubjectRecord& record) { record.faces[0].looks[0].width = -1; },
        [](KxSubjectRecord& record) { record.looks[1].frame = 0; },
        [](KxSubjectRecord& record) { record.looks[0].found[0].width = 0.95F; },
        [](KxSubjectRecord& record) { record.looks[0].found[0].score = std::numeric_limits<float>::quiet_NaN(); },
        [](KxSubjectRecord& record) { record.looks[0].found[0].kind = static_cast<KxDetectionKind>(3); },
        [](KxSubjectRecord& record) { record.mouths[0].face = -1; },
        [](KxSubjectRecord& record) { record.mouths[1].face = 2; },
        [](KxSubjectRecord& record) { record.mouths[1].face = 0; },
        [](KxSubjectRecord& record) { record.mouths[0].looks.clear(); },
        [](KxSubjectRecord& record) { record.mouths[0].looks[1].frame = 4; },
        [](KxSubjectRecord& record) { record.mouths[0].looks[1].frame = 100; },
        [](KxSubjectRecord& record) { record.mouths[0].looks[0].frames = 0; },
        [](KxSubjectRecord& record) { record.sound[0].first = -1; },
        [](KxSubjectRecord& record) { record.sound[1].first = 52; },
        [](KxSubjectRecord& record) { record.sound[1].first = std::numeric_limits<std::int64_t>::max(); },
        [](KxSubjectRecord& record) { record.sound[0].levels.clear(); }};
    for (std::size_t i = 0; i < damages.size(); ++i) {
        KxSubjectRecord record = Record();
        damages[i](record);
        EXPECT_FALSE(IsRead(record)) << "damage " << i;
    }
}
