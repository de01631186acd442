// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/LetterScene.h"

#include "ui/onboarding/ConvexParts.h"

#include <box2d/box2d.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

using std::chrono::nanoseconds;

/// The physics is made for things of a tenth to ten metres.
constexpr float kPointsPerMetre = 60;
constexpr nanoseconds kStep{1'000'000'000 / 120};
constexpr float kStepSeconds = 1.0F / 120;
/// More would make slow machines slower still.
constexpr int kMostStepsAtOnce = 4;
constexpr float kGravity = 30;
constexpr float kWall = 20;
/// How far walls go up, in windows: letters come from there.
constexpr float kWallHeights = 6;
constexpr float kFriction = 0.55F;
constexpr float kRestitution = 0.08F;
/// Piles of hooked shapes tremble for long: after a while they move as through honey, and then are
/// held where they are.
constexpr double kCalmAfterSeconds = 1.0;
constexpr double kHoldAfterSeconds = 2.2;
constexpr float kCalmDamping = 5;
constexpr float kBulletSpeed = 8;
constexpr float kStillSpeed = 0.12F;
constexpr float kStillSpin = 0.12F;
constexpr int kMostSettlingSteps = 120 * 20;

b2Vec2 metres(QPointF point)
{
    return {float(point.x()) / kPointsPerMetre, float(point.y()) / kPointsPerMetre};
}

QPointF points(const b2Vec2 &vector)
{
    return {double(vector.x * kPointsPerMetre), double(vector.y * kPointsPerMetre)};
}

bool isStill(const b2Body &body)
{
    return body.GetLinearVelocity().Length() < kStillSpeed
        && std::abs(body.GetAngularVelocity()) < kStillSpin;
}

b2PolygonShape shapeOf(const QPolygonF &part)
{
    std::array<b2Vec2, b2_maxPolygonVertices> corners;
    static_assert(b2_maxPolygonVertices >= kMaximumPartCorners);
    const size_t count = std::min<size_t>(size_t(part.size()), corners.size());
    std::transform(part.begin(), part.begin() + std::ptrdiff_t(count), corners.begin(), metres);
    b2PolygonShape shape;
    shape.Set(corners.data(), int32(count));
    return shape;
}

struct Pose
{
    QPointF position;
    double angle = 0;
};

Pose poseOf(const b2Body &body)
{
    return {points(body.GetPosition()), double(body.GetAngle())};
}

} // namespace

struct LetterScene::Private
{
    struct Letter
    {
        b2Body *body;
        /// One step ago: what is shown lies between both.
        Pose before;
    };

    explicit Private(QSizeF windowSize)
        : size(windowSize)
    {
        buildWalls();
    }

    void buildWalls()
    {
        if (walls)
            world.DestroyBody(walls);
        const b2BodyDef definition;
        walls = world.CreateBody(&definition);
        const b2Vec2 corner = metres({size.width(), size.height()});
        const float middle = corner.y - kWallHeights * corner.y / 2;
        const float halfHeight = kWallHeights * corner.y / 2 + kWall;
        addWall({-kWall / 2, middle}, kWall / 2, halfHeight);
        addWall({corner.x + kWall / 2, middle}, kWall / 2, halfHeight);
        addWall({corner.x / 2, corner.y + kWall / 2}, corner.x / 2 + kWall, kWall / 2);
    }

    void addWall(const b2Vec2 &centre, float halfWidth, float halfHeight) const
    {
        b2PolygonShape shape;
        shape.SetAsBox(halfWidth, halfHeight, centre, 0);
        b2FixtureDef fixture;
        fixture.shape = &shape;
        fixture.friction = kFriction;
        walls->CreateFixture(&fixture);
    }

    b2Body *makeBody(const Entry &entry)
    {
        b2BodyDef definition;
        definition.type = b2_dynamicBody;
        definition.position = metres(entry.position);
        definition.angle = float(entry.angle);
        definition.linearVelocity = metres(entry.velocityPerSecond);
        definition.angularVelocity = float(entry.spinPerSecond);
        return world.CreateBody(&definition);
    }

    void step()
    {
        for (Letter &letter : letters) {
            letter.before = poseOf(*letter.body);
            // Thin strokes would pass through each other between two steps; the exact way costs
            // too much in a pile.
            letter.body->SetBullet(letter.body->GetLinearVelocity().Length() > kBulletSpeed);
        }
        world.Step(kStepSeconds, 8, 3);
        secondsSinceChange += double(kStepSeconds);
        calmDown();
        for (Letter &letter : letters)
            bringBack(letter);
    }

    void calmDown()
    {
        if (secondsSinceChange < kCalmAfterSeconds)
            return;
        const float damping =
            kCalmDamping * float(std::min(1.0, secondsSinceChange - kCalmAfterSeconds));
        for (const Letter &letter : letters) {
            letter.body->SetLinearDamping(damping / 2);
            letter.body->SetAngularDamping(damping);
        }
        if (secondsSinceChange >= kHoldAfterSeconds && isNearlyStill())
            hold();
    }

    bool isNearlyStill() const
    {
        return secondsSinceChange >= 1.5 * kHoldAfterSeconds
            || std::ranges::all_of(letters,
                                   [](const Letter &letter) { return isStill(*letter.body); });
    }

    void hold()
    {
        for (Letter &letter : letters) {
            letter.body->SetAwake(false);
            letter.before = poseOf(*letter.body);
        }
    }

    void bringBack(Letter &letter) const
    {
        const QPointF at = points(letter.body->GetPosition());
        const bool isInside = at.x() >= 0 && at.x() <= size.width() && at.y() <= size.height()
            && at.y() >= -kWallHeights * size.height();
        if (isInside)
            return;
        const double x = std::clamp(at.x(), size.width() * 0.2, size.width() * 0.8);
        letter.body->SetTransform(metres({x, -size.height() * 0.2}), letter.body->GetAngle());
        letter.body->SetLinearVelocity({0, 0});
        letter.body->SetAwake(true);
        letter.before = poseOf(*letter.body);
    }

    void changed()
    {
        secondsSinceChange = 0;
        for (const Letter &letter : letters) {
            letter.body->SetLinearDamping(0);
            letter.body->SetAngularDamping(0);
        }
    }

    QSizeF size;
    b2World world{b2Vec2(0, kGravity)};
    b2Body *walls = nullptr;
    std::vector<Letter> letters;
    nanoseconds owed{0};
    double secondsSinceChange = 0;
};

LetterScene::LetterScene(QSizeF size)
    : d(std::make_unique<Private>(size.expandedTo({1, 1})))
{
}

LetterScene::~LetterScene() = default;

void LetterScene::resize(QSizeF size)
{
    size = size.expandedTo({1, 1});
    if (size == d->size)
        return;
    const double stretch = size.width() / d->size.width();
    const double down = size.height() - d->size.height();
    d->size = size;
    d->buildWalls();
    for (Private::Letter &letter : d->letters) {
        const QPointF at = points(letter.body->GetPosition());
        letter.body->SetTransform(metres({at.x() * stretch, at.y() + down}),
                                  letter.body->GetAngle());
        letter.body->SetAwake(true);
        letter.before = poseOf(*letter.body);
    }
    d->changed();
}

int LetterScene::add(const std::vector<QPolygonF> &parts, const Entry &entry)
{
    Q_ASSERT(!parts.empty());
    b2Body *body = d->makeBody(entry);
    for (const QPolygonF &part : parts) {
        const b2PolygonShape shape = shapeOf(part);
        b2FixtureDef fixture;
        fixture.shape = &shape;
        fixture.density = 1;
        fixture.friction = kFriction;
        fixture.restitution = kRestitution;
        body->CreateFixture(&fixture);
    }
    d->letters.push_back({body, poseOf(*body)});
    d->changed();
    return count() - 1;
}

int LetterScene::count() const
{
    return int(d->letters.size());
}

QTransform LetterScene::transform(int index) const
{
    const Private::Letter &letter = d->letters[size_t(index)];
    const Pose now = poseOf(*letter.body);
    const double share = double(d->owed.count()) / double(kStep.count());
    const QPointF at = letter.before.position + share * (now.position - letter.before.position);
    const double angle = letter.before.angle + share * (now.angle - letter.before.angle);
    return QTransform::fromTranslate(at.x(), at.y()).rotateRadians(angle);
}

QRectF LetterScene::bounds(int index) const
{
    const b2Body *body = d->letters[size_t(index)].body;
    QRectF whole;
    for (const b2Fixture *fixture = body->GetFixtureList(); fixture; fixture = fixture->GetNext()) {
        b2AABB part{b2Vec2_zero, b2Vec2_zero};
        fixture->GetShape()->ComputeAABB(&part, body->GetTransform(), 0);
        whole |= QRectF(points(part.lowerBound), points(part.upperBound));
    }
    return whole;
}

void LetterScene::advance(nanoseconds time)
{
    if (isAtRest())
        return;
    d->owed += std::min(time, nanoseconds(kMostStepsAtOnce * kStep));
    while (d->owed >= kStep) {
        d->step();
        d->owed -= kStep;
    }
}

bool LetterScene::isAtRest() const
{
    return std::ranges::none_of(
        d->letters, [](const Private::Letter &letter) { return letter.body->IsAwake(); });
}

void LetterScene::settle()
{
    for (int i = 0; i < kMostSettlingSteps && !isAtRest(); ++i)
        d->step();
    d->owed = nanoseconds(0);
}

} // namespace lorva
