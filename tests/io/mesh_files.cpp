// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/mesh_files.h"

#include <vtk_cgns.h>
#include <vtk_exodusII.h>
#include <vtk_hdf5.h>

#include <QFile>

// clang-format off
#include VTK_CGNS(cgnslib.h)
// clang-format on

namespace corvala::host::io {

static constexpr int kPoints = 8;

static void writePointers(int file, int zone, const QStringList& names)
{
    QByteArray text;
    for (const QString& name : names)
        text += name.leftJustified(32).toLatin1();
    const cgsize_t sizes[] = {32, names.size()};
    cg_ziter_write(file, 1, zone, "ZoneIterativeData");
    cg_goto(file, 1, "Zone_t", zone, "ZoneIterativeData_t", 1, "end");
    cg_array_write("FlowSolutionPointers", CGNS_ENUMV(Character), 2, sizes, text.constData());
}

static void writeCoordinates(int file, int zone)
{
    int number = 0;
    const char* const axes[] = {"CoordinateX", "CoordinateY", "CoordinateZ"};
    double values[kPoints];
    for (int axis = 0; axis < 3; ++axis) {
        for (int i = 0; i < kPoints; ++i)
            values[i] = (i >> axis) & 1;
        cg_coord_write(file, 1, zone, CGNS_ENUMV(RealDouble), axes[axis], values, &number);
    }
}

static void writeZone(int file, int zone, const QStringList& solutions)
{
    int number = 0;
    const QByteArray name = "Z" + QByteArray::number(zone);
    const cgsize_t sizes[] = {2, 2, 2, 1, 1, 1, 0, 0, 0};
    cg_zone_write(file, 1, name.constData(), sizes, CGNS_ENUMV(Structured), &zone);
    writeCoordinates(file, zone);
    double values[kPoints];
    for (int solution = 1; solution <= solutions.size(); ++solution) {
        for (int i = 0; i < kPoints; ++i)
            values[i] = 100 * solution + i;
        cg_sol_write(file, 1, zone, qPrintable(solutions[solution - 1]), CGNS_ENUMV(Vertex),
                     &number);
        cg_field_write(file, 1, zone, solution, CGNS_ENUMV(RealDouble), "p", values, &number);
        if (zone == 2)
            cg_field_write(file, 1, zone, solution, CGNS_ENUMV(RealDouble), "q", values, &number);
    }
}

static int startCgns(const QString& path, bool isHdf5, bool isSteady)
{
    const double times[] = {0.5, 1.5, 2.5};
    const cgsize_t count = 3;
    int file = 0;
    int base = 0;
    cg_set_file_type(isHdf5 ? CG_FILE_HDF5 : CG_FILE_ADF);
    cg_open(qPrintable(path), CG_MODE_WRITE, &file);
    cg_base_write(file, "Base", 3, 3, &base);
    if (!isSteady) {
        cg_biter_write(file, base, "BaseIterativeData", 3);
        cg_goto(file, base, "BaseIterativeData_t", 1, "end");
        cg_array_write("TimeValues", CGNS_ENUMV(RealDouble), 1, &count, times);
    }
    return file;
}

static herr_t copyAttribute(hid_t from, const char* name, const H5A_info_t*, void* to)
{
    char value[100] = {};
    const hid_t attribute = H5Aopen(from, name, H5P_DEFAULT);
    const hid_t type = H5Aget_type(attribute);
    const hid_t copy = H5Acreate2(*static_cast<hid_t*>(to), name, type, H5Aget_space(attribute),
                                  H5P_DEFAULT, H5P_DEFAULT);
    H5Aread(attribute, type, value);
    return H5Awrite(copy, type, value);
}

/// Groups do not keep the order of what is in them.
static herr_t copyPlainly(hid_t from, const char* name, const H5L_info_t*, void* to)
{
    const hid_t target = *static_cast<hid_t*>(to);
    hid_t node = H5Oopen(from, name, H5P_DEFAULT);
    if (H5Iget_type(node) != H5I_GROUP)
        return H5Ocopy(from, name, target, name, H5P_DEFAULT, H5P_DEFAULT);
    hid_t group = H5Gcreate2(target, name, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
    H5Aiterate2(node, H5_INDEX_NAME, H5_ITER_INC, nullptr, copyAttribute, &group);
    return H5Literate(node, H5_INDEX_NAME, H5_ITER_INC, nullptr, copyPlainly, &group);
}

static void forgetOrder(const QString& path)
{
    QFile::rename(path, path + ".new");
    H5open();
    const hid_t strong = H5Pcreate(H5P_FILE_ACCESS); // closes what is left open
    H5Pset_fclose_degree(strong, H5F_CLOSE_STRONG);
    const hid_t from = H5Fopen(qPrintable(path + ".new"), H5F_ACC_RDONLY, strong);
    hid_t to = H5Fcreate(qPrintable(path), H5F_ACC_TRUNC, H5P_DEFAULT, strong);
    hid_t root = H5Gopen2(to, "/", H5P_DEFAULT);
    const hid_t old = H5Gopen2(from, "/", H5P_DEFAULT);
    H5Aiterate2(old, H5_INDEX_NAME, H5_ITER_INC, nullptr, copyAttribute, &root);
    H5Literate(old, H5_INDEX_NAME, H5_ITER_INC, nullptr, copyPlainly, &root);
    H5Fclose(from);
    H5Fclose(to);
    QFile::remove(path + ".new");
}

void writeCgns(const QString& path, const CgnsForm& form, bool isHdf5)
{
    const int file = startCgns(path, isHdf5, form.isSteady);
    for (int zone = 1; zone <= 2; ++zone) {
        writeZone(file, zone, form.solutions);
        if (!form.pointers.isEmpty() && (zone == 2 || form.isFirstNamed))
            writePointers(file, zone, form.pointers);
    }
    cg_close(file);
    if (isHdf5 && form.isOld)
        forgetOrder(path);
}

void writeCgnsCells(const QString& path)
{
    const int file = startCgns(path, true, false);
    int zone = 0;
    int number = 0;
    const cgsize_t sizes[] = {kPoints, 1, 0};
    cg_zone_write(file, 1, "Z", sizes, CGNS_ENUMV(Unstructured), &zone);
    writeCoordinates(file, zone);
    const cgsize_t edges[] = {1, 2, 3, 4};
    cg_section_write(file, 1, zone, "edges", CGNS_ENUMV(BAR_2), 1, 2, 0, edges, &number);
    const cgsize_t cube[] = {1, 2, 4, 3, 5, 6, 8, 7};
    cg_section_write(file, 1, zone, "cells", CGNS_ENUMV(HEXA_8), 3, 3, 0, cube, &number);
    for (int time = 1; time <= 3; ++time) {
        const std::vector<double> values(kPoints, 100 * time);
        const QByteArray end = QByteArray::number(time);
        cg_sol_write(file, 1, zone, "P" + end, CGNS_ENUMV(Vertex), &number);
        cg_field_write(file, 1, zone, number, CGNS_ENUMV(RealDouble), "p", values.data(), &number);
        cg_sol_write(file, 1, zone, "C" + end, CGNS_ENUMV(CellCenter), &number);
        cg_field_write(file, 1, zone, number, CGNS_ENUMV(RealDouble), "c", values.data(), &number);
    }
    writePointers(file, zone, {"P1", "P2", "P3"});
    cg_close(file);
}

static void writeSolution(int file, int zone, const char* name, CGNS_ENUMT(GridLocation_t) place,
                          const std::vector<double>& values)
{
    int solution = 0;
    int field = 0;
    cg_sol_write(file, 1, zone, qPrintable(QString("At %1").arg(name)), place, &solution);
    cg_field_write(file, 1, zone, solution, CGNS_ENUMV(RealDouble), name, values.data(), &field);
}

static void writePatch(int file, int zone, const char* name, CGNS_ENUMT(PointSetType_t) kind,
                       CGNS_ENUMT(GridLocation_t) place, const std::vector<cgsize_t>& numbers,
                       const char* family = nullptr)
{
    int patch = 0;
    const auto count = static_cast<cgsize_t>(numbers.size());
    cg_boco_write(file, 1, zone, name, CGNS_ENUMV(BCWall), kind,
                  kind == CGNS_ENUMV(PointRange) ? 2 : count, numbers.data(), &patch);
    cg_boco_gridlocation_write(file, 1, zone, patch, place);
    cg_goto(file, 1, "Zone_t", zone, "ZoneBC_t", 1, "BC_t", patch, "end");
    if (family)
        cg_famname_write(family);
}

void writeCgnsPatches(const QString& path, bool isHdf5)
{
    const int file = startCgns(path, isHdf5, true);
    int number = 0;
    const cgsize_t grid[] = {3, 2, 2, 2, 1, 1, 0, 0, 0};
    const cgsize_t cells[] = {12, 2, 0};
    cg_zone_write(file, 1, "Grid", grid, CGNS_ENUMV(Structured), &number);
    cg_zone_write(file, 1, "Cells", cells, CGNS_ENUMV(Unstructured), &number);
    for (const int zone : {1, 2}) {
        std::vector<double> x, y, z, p;
        for (int i = 0; i < 12; ++i) {
            x.push_back(i % 3);
            y.push_back(i / 3 % 2);
            z.push_back(i / 6);
            p.push_back(i);
        }
        cg_coord_write(file, 1, zone, CGNS_ENUMV(RealDouble), "CoordinateX", x.data(), &number);
        cg_coord_write(file, 1, zone, CGNS_ENUMV(RealDouble), "CoordinateY", y.data(), &number);
        cg_coord_write(file, 1, zone, CGNS_ENUMV(RealDouble), "CoordinateZ", z.data(), &number);
        writeSolution(file, zone, "p", CGNS_ENUMV(Vertex), p);
        writeSolution(file, zone, "c", CGNS_ENUMV(CellCenter), {10, 20});
    }
    const cgsize_t hexahedra[] = {1, 2, 5, 4, 7, 8, 11, 10, 2, 3, 6, 5, 8, 9, 12, 11};
    const cgsize_t mixed[] = {CGNS_ENUMV(QUAD_4), 1, 4, 10, 7, CGNS_ENUMV(TRI_3), 3, 6, 12};
    const cgsize_t starts[] = {0, 5, 9};
    cg_section_write(file, 1, 2, "Hexahedra", CGNS_ENUMV(HEXA_8), 1, 2, 0, hexahedra, &number);
    cg_poly_section_write(file, 1, 2, "Faces", CGNS_ENUMV(MIXED), 3, 4, 0, mixed, starts, &number);
    const auto range = CGNS_ENUMV(PointRange);
    const auto list = CGNS_ENUMV(PointList);
    const auto faces = CGNS_ENUMV(FaceCenter);
    writePatch(file, 1, "Top", range, CGNS_ENUMV(Vertex), {1, 1, 2, 3, 2, 2});
    writePatch(file, 1, "End", range, CGNS_ENUMV(IFaceCenter), {3, 1, 1, 3, 1, 1}, "Out");
    writePatch(file, 2, "Left", range, faces, {3, 3}, "Wall");
    writePatch(file, 2, "Right", list, faces, {4}, "Wall");
    writePatch(file, 2, "Bottom", list, CGNS_ENUMV(Vertex), {1, 2, 3, 4, 5, 6});
    writePatch(file, 2, "Lost", list, faces, {99});
    cg_close(file);
}

void writeExodus(const QString& path, const ExodusForm& form)
{
    int realSize = sizeof(double);
    const int format = form.isHdf5 ? EX_NETCDF4 | EX_NOCLASSIC : 0;
    const int file = ex_create(qPrintable(path), EX_CLOBBER | format, &realSize, &realSize);
    ex_put_init(file, "cubes", 3, kPoints, 2, 2, 0, 1);
    const double x[] = {0, 1, 1, 0, 0, 1, 1, 0};
    const double y[] = {0, 0, 1, 1, 0, 0, 1, 1};
    const double z[] = {0, 0, 0, 0, 1, 1, 1, 1};
    ex_put_coord(file, x, y, z);
    const int corners[] = {1, 2, 3, 4, 5, 6, 7, 8};
    for (const int block : {1, 2}) {
        ex_put_block(file, EX_ELEM_BLOCK, block, block == 2 ? form.kind : "HEX8", 1, kPoints, 0, 0,
                     0);
        ex_put_conn(file, EX_ELEM_BLOCK, block, corners, nullptr, nullptr);
    }
    const int side = 2;
    ex_put_set_param(file, EX_SIDE_SET, 7, 1, 0);
    ex_put_set(file, EX_SIDE_SET, 7, &form.element, &side);
    ex_put_variable_param(file, EX_NODAL, 1);
    ex_put_variable_name(file, EX_NODAL, 1, "T");
    for (std::size_t i = 0; i < form.times.size(); ++i) {
        const int step = static_cast<int>(i) + 1;
        double values[kPoints];
        for (int point = 0; point < kPoints; ++point)
            values[point] = form.first + 100 * step + point;
        ex_put_time(file, step, &form.times[i]);
        ex_put_var(file, step, EX_NODAL, 1, 1, kPoints, values);
    }
    ex_close(file);
}

} // namespace corvala::host::io
