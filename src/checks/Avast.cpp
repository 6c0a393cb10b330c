#include <tvpolicy/checks/Avast.h>

#include <fstream>

std::string Avast::getDefinitionDate(std::string path)
{
    // Stored as day, separator, month, separator, year: "15.03.2011".
    char date[10] = {'0', '0', '0', '0', '0', '0', '0', '0', '0', '0'};
    std::ifstream database(path, std::ios::binary);
    database.seekg(241);
    database.read(date, sizeof date);
    return std::string(date + 6, 4) + "-" + std::string(date + 3, 2) + "-" + std::string(date, 2);
}
