#include "BuiltInCatalogue.h"
#include "core/SharedState.h"

// The complete catalogue of both sites. It is written into a new main
// database and not read again: from then on the database is the truth.
// The small slips of alphabetical order (Lane before Lake, Circuit before
// Chip, ...) are the service's own order and are kept.
namespace BuiltInCatalogue {

const QVector<BuiltInNeighborhood>& usa()
{
    static const QVector<BuiltInNeighborhood> list = {
        {"Area51",
         "Science fiction and fantasy",
         {"Capsule",   "Cavern",     "Chamber", "Comet",       "Corridor", "Crater",
          "Dimension", "Dreamworld", "Dungeon", "Dunes",       "Hollow",   "Keep",
          "Labyrinth", "Lair",       "Nebula",  "Nova",        "Orion",    "Portal",
          "Quadrant",  "Rampart",    "Realm",   "Shadowlands", "Shire",    "Shuttle",
          "Stargate",  "Starship",   "Station", "Vault",       "Zone"}},
        {"Athens",
         "Education, literature, poetry, philosophy",
         {"Academy", "Acropolis", "Aegean", "Agora", "Atlantis", "Atrium", "Crete", "Cyprus",
          "Delphi", "Forum", "Ithaca", "Olympus", "Oracle", "Parthenon", "Rhodes", "Styx", "Thebes",
          "Troy"}},
        {"Augusta", "Golf and the finer side of the fairways", {"Fairway", "Links"}},
        {"Baja",
         "Four wheeling, SUVs, off roading, adventure travel",
         {"Canyon", "Cliffs", "Dunes", "Mesa", "Outback", "Ravine", "Trails"}},
        {"BourbonStreet",
         "Jazz, Cajun food, southern culture",
         {"Bayou", "Canal", "Delta", "Quarter", "Square"}},
        {"Broadway",
         "Theater, musicals, show business",
         {"Alley", "Balcony", "Booth", "Orchestra", "Stage", "Wing"}},
        {"CapeCanaveral",
         "Science, mathematics, aviation",
         {"Campus", "Cockpit", "Galaxy", "Hall", "Hangar", "Lab", "Launchpad", "Runway",
          "Station"}},
        {"CapitolHill",
         "Government, politics, and lots of strong opinions",
         {"Congress", "Lobby", "Parliament", "Senate"}},
        {"CollegePark",
         "University life, from academics to extra curriculars",
         {"Bookstore", "Campus",    "Center", "Classroom", "Den",     "Dorm",   "Field",
          "Grounds",   "Gym",       "Hall",   "Lab",       "Library", "Lounge", "Plaza",
          "Quad",      "Residence", "Square", "Stadium",   "Theater", "Union"}},
        {"Colosseum",
         "Sports and recreation",
         {"Arena", "Bench", "Bleachers", "Court",    "Dome",    "Dugout", "Field",
          "Gym",   "Lodge", "Loge",      "Midfield", "Mound",   "Park",   "Pressbox",
          "Ring",  "Rink",  "Sideline",  "Slope",    "Stadium", "Stands", "Track"}},
        {"EnchantedForest",
         "A neighborhood for and by kids",
         {"Cottage", "Creek", "Dell", "Fountain", "Glade", "Meadow", "Mountain", "Palace",
          "Tower"}},
        {"Eureka",
         "Small businesses, home offices",
         {"Boardroom", "Concourse", "Enterprises", "Gold", "Mine", "Office", "Park", "Plaza",
          "Promenade", "Suite", "Vault"}},
        {"FashionAvenue",
         "Top designers, beauty and fashion",
         {"Catwalk", "Mall", "Runway", "Salon", "Stage"}},
        {"Heartland",
         "Families, pets, hometown values",
         {"Acres",  "Bluffs", "Cottage", "Estates", "Farm",  "Fields",  "Flats",
          "Garden", "Hills",  "Hollow",  "Lane",    "Lake",  "Meadows", "Oaks",
          "Park",   "Plains", "Pointe",  "Prairie", "Ranch", "Ridge",   "Shores",
          "Trail",  "Valley", "Village", "Woods"}},
        {"Hollywood", "Film and TV", {"Academy", "Agency", "Boulevard", "Bungalow", "Chateau",
                                      "Cinema",  "Club",   "Guild",     "Heights",  "Highrise",
                                      "Hills",   "Land",   "Location",  "Lot",      "Makeup",
                                      "Mansion", "Palace", "Park",      "Picture",  "Screen",
                                      "Set",     "Studio", "Theater",   "Trailer"}},
        {"HotSprings",
         "Health and fitness",
         {"Bath", "Falls", "Oasis", "Resort", "Sauna", "Spa", "Villa"}},
        {"MadisonAvenue", "Advertising", {"Boardroom", "Newsstand"}},
        {"MotorCity",
         "Cars, trucks, motorcycles",
         {"Boulevard", "Downs", "Factory", "Flats", "Garage", "Lane", "Pit", "Shop", "Speedway",
          "Track"}},
        {"NapaValley", "Food, wine, dining out, the gourmet lifestyle", {"Vineyard"}},
        {"Nashville", "Country music", {"Opry", "Rodeo", "Stage"}},
        {"Paris",
         "Romance, poetry, the arts",
         {"Arc", "Bistro", "Cafe", "Cathedral", "Chateau", "Gallery", "Jardin", "LeftBank",
          "Lights", "Louvre", "Maison", "Metro", "Musee", "Opera", "Palais", "Parc", "Rue", "Salon",
          "Tower"}},
        {"Pentagon", "Military men and women", {"Barracks", "Bunker", "Quarters"}},
        {"Petsburgh", "Pets and the people who love them", {"Farm", "Haven", "Zoo"}},
        {"PicketFence", "Home Improvement and Real Estate", {"Garden"}},
        {"Pipeline",
         "Extreme Sports",
         {"Curb", "Dropzone", "Halfpipe", "Ramp", "Reef", "Ridge", "Shore", "Slope", "Valley"}},
        {"RainForest",
         "The environment, conservation, recycling",
         {"Andes", "Canopy", "Jungle", "Vines"}},
        {"ResearchTriangle",
         "The future of technology",
         {"Campus", "Facility", "Forum", "Lab", "Node", "System", "Thinktank"}},
        {"RodeoDrive", "Shopping, upscale living", {"Boutique", "Mall", "Outlet"}},
        {"SiliconValley",
         "Hardware, software, programming",
         {"Bay",     "Bridge",    "Byte",    "Cable", "Campus",   "Circuit", "Chip",
          "Code",    "Foothills", "Garage",  "Grid",  "Haven",    "Heights", "Hills",
          "Horizon", "Hub",       "Lab",     "Lakes", "Monitor",  "Mouse",   "Network",
          "Orchard", "Park",      "Peaks",   "Pines", "Platform", "Port",    "Program",
          "Ridge",   "Sector",    "Station", "Vista", "Way"}},
        {"SoHo",
         "Art, poetry, prose, the bohemian spirit",
         {"Atrium", "Bistro", "Cafe", "Coffeehouse", "Den", "Exhibit", "Gallery", "Lofts", "Museum",
          "Nook", "Square", "Studios", "Study", "Village", "Workshop"}},
        {"SouthBeach",
         "Hanging out, chatting, meeting and greeting",
         {"Balcony", "Bay",    "Bluffs", "Boardwalk", "Breakers", "Bungalow", "Cabana",
          "Canal",   "Cape",   "Castle", "Channel",   "Club",     "Cove",     "Coast",
          "Docks",   "Dunes",  "Gulf",   "Harbor",    "Inlet",    "Island",   "Jetty",
          "Keys",    "Lagoon", "Lights", "Lounge",    "Mansion",  "Marina",   "Palms",
          "Pier",    "Pointe", "Port",   "Reef",      "Sands",    "Sandbar",  "Shores",
          "Strand",  "Suite",  "Surf",   "Tidepool",  "Terrace"}},
        {"SunsetStrip",
         "Rock, grunge, punk, the club scene",
         {"Alley",    "Amphitheatre", "Arena",  "Backstage", "Balcony", "Birdland",    "Bistro",
          "Basement", "Cabaret",      "Club",   "Concert",   "Diner",   "Disco",       "Frontrow",
          "Hall",     "Hotel",        "Gala",   "Garage",    "Lounge",  "Lobby",       "Mezzanine",
          "Palace",   "Palladium",    "Palms",  "Pavilion",  "Pit",     "Plaza",       "Show",
          "Stadium",  "Stage",        "Studio", "Theater",   "Towers",  "Underground", "Venue",
          "Villa",    "Vine"}},
        {"TelevisionCity",
         "TV fan clubs, sitcoms, talk shows",
         {"Lot", "Network", "Satellite", "Set", "Stage", "Station", "Studio"}},
        {"TheTropics",
         "Vacations, resorts, travel",
         {"Beach", "Cabana", "Cove", "Harbor", "Island", "Lagoon", "Paradise", "Resort", "Shores"}},
        {"TimesSquare",
         "Computer, video and role playing games",
         {"Alley",    "Arcade",  "Arena",   "Battlefield", "Bunker",   "Castle", "Cauldron",
          "Cavern",   "Chamber", "Chasm",   "Corner",      "Corridor", "Dome",   "Dungeon",
          "Fortress", "Galaxy",  "Hangar",  "Labyrinth",   "Lair",     "Maze",   "Portal",
          "Realm",    "Ring",    "Stadium", "Tower",       "Zone"}},
        {"Tokyo",
         "Anime and all things Asian",
         {"Bay",    "Bridge", "Courtyard", "Dojo",   "Field",    "Flats",  "Fuji",
          "Garden", "Ginza",  "Gulf",      "Harbor", "Island",   "Pagoda", "Palace",
          "Shrine", "Spa",    "Springs",   "Subway", "Teahouse", "Temple", "Towers"}},
        {"Vienna", "Classical music, opera, ballet", {"Choir", "Opera", "Strasse", "Studio"}},
        {"WallStreet",
         "Personal investing, finance, economics",
         {"Bank", "Bureau", "District", "Exchange", "Floor", "Market"}},
        {"Wellesley", "A community for women", {"Atrium", "Garden", "Gazebo", "Veranda"}},
        {"WestHollywood",
         "Gay, lesbian, bisexual and transgendered",
         {"Castro", "Cafe", "Chelsea", "Heights", "Park", "Stonewall", "Village"}},
        {"Yosemite",
         "Hiking, rafting, and the great outdoors",
         {"Cabin", "Campground", "Falls", "Forest", "Geyser", "Gorge", "Meadows", "Rapids",
          "Trails"}},
    };
    return list;
}

const QVector<BuiltInNeighborhood>& japan()
{
    static const QVector<BuiltInNeighborhood> list = {
        {"Milkyway", "Romance, companion", {"Kaigan", "Orion"}},
        {"MotorCity", "Cars, motorcycles", {}},
        {"Milano", "Fashion, design", {}},
        {"Broadway", "Rock, pop", {"Guitar"}},
        {"Playtown", "Games, anime", {"Denei", "Spade", "Dice"}},
        {"SilkRoad", "Travel, recreation", {}},
        {"Hollywood", "Music, film, art", {"Kouen", "Miyuki"}},
        {"HeartLand", "Families, self-Introduction, pets", {"Namiki", "Gaien", "Suzuran", "Icho"}},
        {"Berkeley", "University life", {}},
        {"Technopolis", "Science, technology, science fiction", {}},
        {"Colosseum", "Sports, outdoors", {"Acropolis"}},
        {"SiliconValley", "Hardware, software, programming", {"PaloAlto"}},
        {"EpicureanTable", "Food, dining out, the gourmet lifestyle", {}},
        {"WallStreet", "Politics, economics, business, law", {}},
    };
    return list;
}

const QVector<BuiltInNeighborhood>& site(bool japanSite)
{
    return japanSite ? japan() : usa();
}

} // namespace BuiltInCatalogue

void SeedCatalogue(SharedState& state)
{
    CatalogueData& cat = state.catalogue;
    const QVector<BuiltInNeighborhood>& site = BuiltInCatalogue::site(state.gblnJapan);
    const int count = state.gblnJapan ? 14 : 41;
    cat.gintNeighborhoodCount = count;
    cat.gintMaxSuburbs = CatalogueData::SeedMaxSuburbs;
    cat.gastrDescription = QVector<QString>(count + 1);
    cat.gaintSuburbCount = QVector<qint16>(count + 1, 0);

    for (int row = 0; row < count; ++row) {
        for (int c = 1; c <= CatalogueData::SeedMaxSuburbs; ++c)
            cat.gastrCatalogue[row][c] = QString("");
    }
    for (int i = 1; i <= count; ++i) {
        const BuiltInNeighborhood& n = site[i - 1];
        cat.gastrCatalogue[i - 1][0] = n.name;
        cat.gastrDescription[i] = n.description;
        for (int s = 0; s < n.suburbs.size(); ++s)
            cat.gastrCatalogue[i - 1][s + 1] = n.suburbs[s];
        cat.gaintSuburbCount[i] = static_cast<qint16>(n.suburbs.size());
    }
}
