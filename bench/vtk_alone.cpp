// SPDX-License-Identifier: BSD-3-Clause
// What a program that uses nothing but VTK does with a VTK XML file, to be measured against:
// vtk_alone read|draw FILE

#include <vtkActor.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkXMLMultiBlockDataReader.h>
#include <vtkXMLUnstructuredGridReader.h>

#include <cstdio>
#include <string>

static void draw(vtkAlgorithm& reader)
{
    const vtkNew<vtkDataSetSurfaceFilter> surface;
    surface->SetInputConnection(reader.GetOutputPort());
    const vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputConnection(surface->GetOutputPort());
    const vtkNew<vtkActor> actor;
    actor->SetMapper(mapper);
    const vtkNew<vtkRenderer> renderer;
    renderer->AddActor(actor);
    const vtkNew<vtkRenderWindow> window;
    window->OffScreenRenderingOn();
    window->SetSize(800, 600);
    window->AddRenderer(renderer);
    window->Render();
}

int main(int count, char** arguments)
{
    const std::string mode = count == 3 ? arguments[1] : "";
    if (mode != "read" && mode != "draw") {
        std::fputs("usage: vtk_alone read|draw FILE\n", stderr);
        return 2;
    }
    const std::string file = arguments[2];
    const vtkNew<vtkXMLMultiBlockDataReader> blocks;
    const vtkNew<vtkXMLUnstructuredGridReader> cells;
    const bool isTree = file.size() > 4 && file.substr(file.size() - 4) == ".vtm";
    vtkXMLReader& reader = isTree ? static_cast<vtkXMLReader&>(*blocks) : *cells;
    reader.SetFileName(file.c_str());
    if (mode == "read")
        reader.Update();
    else
        draw(reader);
    return reader.GetErrorCode() == 0 ? 0 : 1;
}
