#pragma once

class QPainter;

// The vector drawings of the Neighborhood pictures. Each is drawn in a box
// of 64 by 64 units, centred on (32, 32), over the picture's background;
// the caller scales the painter and clips to the picture's shape, so a
// drawing may run off the edges (ground, sea, road).
class NeighborhoodMotifs
{
public:
    enum class Motif
    {
        House,
        // USA site
        Planet,
        Temple,
        GolfFlag,
        Mesa,
        Trumpet,
        Curtains,
        Rocket,
        Capitol,
        Mortarboard,
        Trophy,
        Mushroom,
        Briefcase,
        Dress,
        Barn,
        Clapperboard,
        Dumbbell,
        Megaphone,
        Car,
        WineGlass,
        MusicNotes,
        EiffelTower,
        StarPentagon,
        PawPrint,
        PicketFence,
        Wave,
        Leaf,
        Atom,
        ShoppingBag,
        Chip,
        Palette,
        SpeechBubbles,
        ElectricGuitar,
        Television,
        PalmIsland,
        Gamepad,
        Torii,
        PianoKeys,
        StockChart,
        Venus,
        Rainbow,
        Mountains,
        // Japan site
        MoonStars,
        Motorcycle,
        Scissors,
        Microphone,
        Dice,
        Compass,
        FilmReel,
        HeartHome,
        OpenBook,
        Robot,
        SoccerBall,
        Monitor,
        RiceBowl,
        Scales,
    };

    static void draw(QPainter& p, Motif motif);
};
