#include "support/lng_tables.h"

#include <array>
#include <span>
#include <string>

#include "border/host_api/oxk_basic.h"
#include "support/cp1251.h"

namespace ox {
namespace {

struct entry {
    const char* english;
    const char* russian;
};

constexpr entry outcomes[] = {
    {"done", cp1251<U"выполнено">},      {"user stop", cp1251<U"прервано пользователем">},
    {"error", cp1251<U"ошибка">},        {"Load from", cp1251<U"Загрузить из">},
    {"Save to", cp1251<U"Сохранить в">},
};

constexpr entry grid_operations[] = {
    {"Calculate statistics", cp1251<U"Расчёт статистики">},
    {"Load mask", cp1251<U"Загрузить маску">},
    {"Save mask", cp1251<U"Сохранить маску">},
    {"Find groups", cp1251<U"Выделение групп">},
    {"Fill groups", cp1251<U"Заливка групп">},
    {"Fill small groups", cp1251<U"Заливка малых групп">},
    {"Thinning", cp1251<U"Утончение">},
    {"Filtration", cp1251<U"Фильтрация">},
    {"Expand", cp1251<U"Расширение">},
    {"Calculate distances", cp1251<U"Расчёт расстояний">},
    {"Convert to bit", cp1251<U"Преобразовать в битовый">},
    {"Convert to byte", cp1251<U"Преобразовать в байтовый">},
    {"Convert to int", cp1251<U"Преобразовать в целочисленный">},
    {"Convert to float", cp1251<U"Преобразовать в вещественный">},
    {"Convert to bit level", cp1251<U"Преобразовать в битовый по уровню">},
    {"Convert to range", cp1251<U"Преобразовать в диапазоны">},
    {"Rerange", cp1251<U"Изменение диапазона">},
    {"Exist in cell", cp1251<U"Наличие в ячейке">},
    {"Number in cell", cp1251<U"Номер в ячейке">},
    {"Count in cell", cp1251<U"Количество в ячейке">},
    {"Field in cell", cp1251<U"Поле в ячейке">},
    {"Statistics in object", cp1251<U"Статистика в объекте">},
    {"Interpolate", cp1251<U"Интерполяция">},
};

constexpr entry window_statistics[] = {
    {"Window mean", cp1251<U"Среднее в окне">},
    {"Window variation", cp1251<U"Вариация в окне">},
    {"Window majority", cp1251<U"Преобладающее в окне">},
    {"Window sum", cp1251<U"Сумма в окне">},
    {"Window minority", cp1251<U"Наиболее редкое в окне">},
    {"Window deviation", cp1251<U"Отклонение в окне">},
    {"Window median", cp1251<U"Медиана в окне">},
    {"Window function", cp1251<U"Функция в окне">},
    {"Window minimum", cp1251<U"Минимум в окне">},
    {"Window maximum", cp1251<U"Максимум в окне">},
    {"Window stat moment", cp1251<U"Статистический момент в окне">},
    {"Window quantil", cp1251<U"Квантиль в окне">},
};

constexpr entry calculator_functions[] = {
    {"Logical NOT", cp1251<U"Логическое НЕ">},
    {"Logical AND", cp1251<U"Логическое И">},
    {"Logical OR", cp1251<U"Логическое ИЛИ">},
    {"Linear \"a1*x1 + b\"", cp1251<U"Линейная \"a1*x1 + b\"">},
    {"Linear \"a1*x1 + a2*x2 + b\"", cp1251<U"Линейная \"a1*x1 + a2*x2 + b\"">},
    {"Linear \"a1*x1 + a2*x2 + a3*x3 + b\"", cp1251<U"Линейная \"a1*x1 + a2*x2 + a3*x3 + b\"">},
    {"Absolute value", cp1251<U"Абсолютное значение">},
    {"Divide", cp1251<U"Деление">},
    {"Condition", cp1251<U"Условие">},
    {"Linear sum", cp1251<U"Линейная сумма">},
    {"Multiply", cp1251<U"Умножение">},
    {"Convert RGB to H(HSB)", cp1251<U"Преобразовать RGB в H(HSB)">},
    {"Convert RGB to S(HSB)", cp1251<U"Преобразовать RGB в S(HSB)">},
    {"Convert RGB to B(HSB)", cp1251<U"Преобразовать RGB в B(HSB)">},
};

constexpr entry vector_operations[] = {
    {"Vectoring", cp1251<U"Векторизация">},
    {"Simplify", cp1251<U"Упрощение">},
    {"Polygon intersection", cp1251<U"Пересечение полигонов">},
    {"Point in polygons", cp1251<U"Точки в полигонах">},
};

constexpr entry dialog_words[] = {
    {"Apply", cp1251<U"Применить">},
    {"Cancel", cp1251<U"Отмена">},
    {"Help", cp1251<U"Справка">},
    {"Successfully executed", cp1251<U"Успешно выполнено">},
    {"Error: execution terminated", cp1251<U"Ошибка: выполнение прервано">},
    {"Save", cp1251<U"Сохранить">},
    {"Load", cp1251<U"Загрузить">},
};

constexpr entry projection_words[] = {
    {"Spheroid", cp1251<U"Эллипсоид">},
    {"Spheroid", cp1251<U"Название">},
    {"Semimajor axis", cp1251<U"Большая полуось">},
    {"Semiminor axis", cp1251<U"Малая полуось">},
    {"Inverse flattering", cp1251<U"Обратный коэфф. сжатия">},
    {"Geographic coordinate system", cp1251<U"Система координат">},
    {"Datum", cp1251<U"Датум">},
    {"Datum parameters", cp1251<U"Параметры датума">},
    {"Axis X", cp1251<U"Ось Х">},
    {"Axis Y", cp1251<U"Ось Y">},
    {"Axis Z", cp1251<U"Ось Z">},
    {"Shift", cp1251<U"Смещение">},
    {"Rotate", cp1251<U"Поворот">},
    {"Scale factor", cp1251<U"Масштабный коэфф.">},
    {"Projection", cp1251<U"Проекция">},
    {"Projection", cp1251<U"Название">},
    {"Projection parameters", cp1251<U"Параметры проекции">},
    {"Central Meridian", cp1251<U"Центральный меридиан">},
    {"Central Meridian", cp1251<U"Меридиан центра проекции">},
    {"Latitude of Origin", cp1251<U"Широта начала коорд.">},
    {"False Easting", cp1251<U"Сдвиг к востоку">},
    {"False Northing", cp1251<U"Сдвиг к северу">},
    {"1st Standart Parallel", cp1251<U"1я стандартная параллель">},
    {"1st Standart Parallel", cp1251<U"1я стандартная параллель">},
    {"2nd Standart Parallel", cp1251<U"2я стандартная параллель">},
    {"Scale Factor", cp1251<U"Масштабный коэфф.">},
    {"Scale Factor", cp1251<U"Масштабный коэфф.">},
    {"Alpha", cp1251<U"Альфа">},
    {"Type", cp1251<U"Тип">},
    {"Unknown", cp1251<U"Не определена">},
    {"Usual projections", cp1251<U"Общие проекции">},
    {"Zonal projections", cp1251<U"Зональные проекции">},
    {"Zonal type", cp1251<U"Проекция">},
    {"Zone", cp1251<U"Номер зоны">},
    {"Projection", cp1251<U"Проекция">},
    {"Projection parameters file *.pj4|*.pj4|ESRI projection  file *.prj|*.prj",
     cp1251<U"Файл параметров проекции *.pj4|*.pj4|Файл проекции ESRI *.prj|*.prj">},
};

constexpr entry shape_reprojection[] = {
    {"Reproject shapes", cp1251<U"Перепроецирование шейп-файлов">},
    {"Source", cp1251<U"Исходные данные">},
    {"Destination", cp1251<U"Результат">},
    {"File", cp1251<U"Файл">},
    {"Projection", cp1251<U"Проекция">},
    {"Shape files *.shp|*.shp|", cp1251<U"Шейп-файлы *.shp|*.shp|">},
};

constexpr entry image_reprojection[] = {
    {"Reproject Tif", cp1251<U"Перепроецирование Tif">},
    {"Source", cp1251<U"Исходные данные">},
    {"Destination", cp1251<U"Результат">},
    {"File", cp1251<U"Файл">},
    {"Projection", cp1251<U"Проекция">},
    {"Image files *.tif|*.tif;*.tiff|", cp1251<U"Файлы изображений *.tif|*.tif;*.tiff|">},
};

constexpr entry object_statistics[] = {
    {"All in object", cp1251<U"Всего в объекте">},
    {"Defined in object", cp1251<U"Определено в объекте">},
    {"Undefined in object", cp1251<U"Не определено в объекте">},
    {"Min in object", cp1251<U"Минимум в объекте">},
    {"Max in object", cp1251<U"Максимум в объекте">},
    {"Mean in object", cp1251<U"Среднее в объекте">},
    {"Standard deviation in object", cp1251<U"Стандартное отклонение в объекте">},
    {"Majority in object", cp1251<U"Преобладающее в объекте">},
    {"Majority size in object", cp1251<U"Количество преобладающего в объекте">},
    {"Minority in object", cp1251<U"Наиболее редкое в объекте">},
    {"Minority size in object", cp1251<U"Количество наиболее редкого в объекте">},
    {"Sum", cp1251<U"Сумма">},
    {"Density", cp1251<U"Плотность">},
};

// Callers choose by index. In Russian, reading is spoken of as writing and writing as reading.
constexpr entry file_messages[] = {
    {"Not enough memory. Size to alloc: %d",
     cp1251<U"Недостаточно свободной памяти. Размер выделяемой памяти: %d">},
    {"Can't open file: \"%s\"", cp1251<U"Не могу открыть файл: \"%s\"">},
    {"Error reading file: \"%s\"", cp1251<U"Ошибка записи в файл: \"%s\"">},
    {"Error writing file: \"%s\"", cp1251<U"Ошибка чтения из файла: \"%s\"">},
};

constexpr entry clustering_methods[] = {
    {"K means", cp1251<U"К-средних">},
};

constexpr std::array<std::span<const entry>, 12> groups{
    outcomes,           grid_operations,   window_statistics, calculator_functions,
    vector_operations,  dialog_words,      projection_words,  shape_reprojection,
    image_reprojection, object_statistics, file_messages,     clustering_methods,
};

std::uint32_t lng_russian = 0;
bool decided = false;
std::string shared_result;

}  // namespace

void lng_init() {
    if (decided) return;
    lng_russian = ox_res_get_lng() == 0 ? 1 : 0;
    decided = true;
}

void lng_set(std::uint32_t flag) { lng_russian = flag; }

const char* lng_text(std::uint32_t group, std::int32_t index) {
    lng_init();
    shared_result = "unknown str";
    if (group < groups.size() && index >= 0 && static_cast<std::size_t>(index) < groups[group].size()) {
        const auto& found = groups[group][static_cast<std::size_t>(index)];
        shared_result = lng_russian == 1 ? found.russian : found.english;
    }
    return shared_result.c_str();
}

}  // namespace ox
