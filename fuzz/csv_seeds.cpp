// Recordings in the three layouts.

#include "fuzz/seeds.h"
#include "record/csv_header.h"

QList<seeds::Seed> seeds::csv()
{
    const QByteArray motion = "0.125,-0.250,1.000,10.50,-20.50,30.46,12.50,-25.00,37.46,10.00,-20.00,30.00,"
                              "0.800,0.200,-0.400,0.400";
    const QByteArray silent = ",9" + QByteArray(16, ',');
    const QByteArray groups = ",5," + motion + silent + QByteArray(14 * 17, ',') + '\n';
    const QByteArray single = "1790000000,4294967295,1.01325e+06,25.5," + motion + '\n';
    const QByteArray nodes62 = "1790000001" + groups;
    const QByteArray nodes63 = "4000000000,1790000001" + groups;
    const QByteArray all =
        csv_header::line91() + single + csv_header::line62() + nodes62 + csv_header::line63() + nodes63 + single;
    QByteArray spreadsheet = "\xEF\xBB\xBF" + csv_header::line91() + single;
    spreadsheet.replace(',', ';').replace('.', ',').replace('\n', "\r\n");
    return {{"csv", "single", csv_header::line91() + single + single},
            {"csv", "batches62", csv_header::line62() + nodes62},
            {"csv", "batches63", csv_header::line63() + nodes63},
            {"csv", "all_kinds", all},
            {"csv", "spreadsheet", spreadsheet},
            {"csv", "cut", all.chopped(20)}};
}
