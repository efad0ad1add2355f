// The one place of the simulated host that speaks Open CASCADE: its headers
// stay here. The solid becomes an XCAF document, a product per model named
// as the model, which the format's document writer puts into the file.
#include "Occt3DWriter.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <IGESCAFControl_Writer.hxx>
#include <IGESControl_Controller.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <Precision.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <Standard_Failure.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Trsf.hxx>

#include <map>
#include <set>

namespace sim {
namespace {

// The host's matrices act on row vectors; Open CASCADE's on columns.
gp_Trsf ToTrsf(const Transform& m) {
  gp_Trsf trsf;
  trsf.SetValues(m[0][0], m[1][0], m[2][0], m[3][0], m[0][1], m[1][1], m[2][1], m[3][1], m[0][2], m[1][2],
                 m[2][2], m[3][2]);
  return trsf;
}

TopoDS_Face FlatFace(const SurfaceDef& surface, int flatAxis) {
  int u = (flatAxis + 1) % 3;
  int v = (flatAxis + 2) % 3;
  auto corner = [&](bool uHigh, bool vHigh) {
    double xyz[3];
    xyz[flatAxis] = surface.min[flatAxis];
    xyz[u] = uHigh ? surface.max[u] : surface.min[u];
    xyz[v] = vHigh ? surface.max[v] : surface.min[v];
    return gp_Pnt(xyz[0], xyz[1], xyz[2]);
  };
  BRepBuilderAPI_MakePolygon outline(corner(false, false), corner(true, false), corner(true, true),
                                     corner(false, true), Standard_True);
  return BRepBuilderAPI_MakeFace(outline.Wire(), Standard_True).Face();
}

TopoDS_Compound PartShape(const Model& part, bool solids) {
  BRep_Builder builder;
  TopoDS_Compound compound;
  builder.MakeCompound(compound);
  for (const SurfaceDef& surface : part.def.surfaces) {
    int flatAxes = 0;
    int flatAxis = 0;
    for (int axis = 0; axis < 3; ++axis) {
      if (std::abs(surface.max[axis] - surface.min[axis]) > Precision::Confusion()) continue;
      ++flatAxes;
      flatAxis = axis;
    }
    if (flatAxes == 0) {
      BRepPrimAPI_MakeBox box(gp_Pnt(surface.min[0], surface.min[1], surface.min[2]),
                              gp_Pnt(surface.max[0], surface.max[1], surface.max[2]));
      builder.Add(compound, solids ? TopoDS_Shape(box.Solid()) : TopoDS_Shape(box.Shell()));
    } else if (flatAxes == 1) {
      builder.Add(compound, FlatFace(surface, flatAxis));
    }
  }
  return compound;
}

class DocumentBuilder {
 public:
  DocumentBuilder(const HostState& state, const Handle(XCAFDoc_ShapeTool) & tool, bool solids)
      : state_(state), tool_(tool), solids_(solids) {}

  // One label per model however often it is placed.
  TDF_Label Product(const Model& model) {
    if (auto known = products_.find(&model); known != products_.end()) return known->second;
    TDF_Label label;
    if (model.def.type == PRO_MDL_ASSEMBLY) {
      open_.insert(&model);
      label = tool_->NewShape();
      for (size_t i = 0; i < model.def.components.size(); ++i) {
        const Model* child = state_.LiveModel(model.componentModels[i]);
        // A model that holds itself is left out where it comes back.
        if (model.def.components[i].suppressed || !child || open_.count(child)) continue;
        tool_->AddComponent(label, Product(*child),
                            TopLoc_Location(ToTrsf(model.def.components[i].transform)));
      }
      open_.erase(&model);
    } else {
      label = tool_->AddShape(PartShape(model, solids_), Standard_False);
    }
    TDataStd_Name::Set(label, TCollection_ExtendedString(model.def.name.c_str()));
    products_.emplace(&model, label);
    return label;
  }

 private:
  const HostState& state_;
  Handle(XCAFDoc_ShapeTool) tool_;
  bool solids_;
  std::map<const Model*, TDF_Label> products_;
  std::set<const Model*> open_;
};

class TextPrinter : public Message_Printer {
 public:
  explicit TextPrinter(std::string& text) : text_(text) { SetTraceLevel(Message_Info); }

 protected:
  void send(const TCollection_AsciiString& message, const Message_Gravity) const override {
    text_ += message.ToCString();
    text_ += '\n';
  }

 private:
  std::string& text_;
};

// The translators report to the host's log, never to the console, for as
// long as the object lives.
class MessagesTo {
 public:
  explicit MessagesTo(std::string& text) : saved_(Message::DefaultMessenger()->Printers()) {
    Message::DefaultMessenger()->ChangePrinters().Clear();
    Message::DefaultMessenger()->AddPrinter(new TextPrinter(text));
  }
  ~MessagesTo() { Message::DefaultMessenger()->ChangePrinters() = saved_; }
  MessagesTo(const MessagesTo&) = delete;
  MessagesTo& operator=(const MessagesTo&) = delete;

 private:
  Message_SequenceOfPrinters saved_;
};

// A document of the application's session, closed however the export ends.
class Document {
 public:
  Document() { XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", document_); }
  ~Document() { XCAFApp_Application::GetApplication()->Close(document_); }
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  const Handle(TDocStd_Document) & get() const { return document_; }
  Handle(XCAFDoc_ShapeTool) Shapes() const { return XCAFDoc_DocumentTool::ShapeTool(document_->Main()); }

 private:
  Handle(TDocStd_Document) document_;
};

bool WriteDocument(const Handle(TDocStd_Document) & document, Format3D format, const std::string& file) {
  if (format == Format3D::Iges) {
    IGESControl_Controller::Init();
    // Solids as solids, not as loose trimmed surfaces.
    Interface_Static::SetIVal("write.iges.brep.mode", 1);
    IGESCAFControl_Writer writer;
    writer.SetNameMode(Standard_True);
    return writer.Perform(document, file.c_str());
  }
  STEPCAFControl_Controller::Init();
  Interface_Static::SetCVal("write.step.schema", "AP214IS");
  STEPCAFControl_Writer writer;
  writer.SetNameMode(Standard_True);
  return writer.Transfer(document, STEPControl_AsIs) && writer.Write(file.c_str()) == IFSelect_RetDone;
}

}  // namespace

Export3DResult Write3DFile(const HostState& state, const Model& top, const Export3DOptions& options,
                           const std::filesystem::path& file) {
  Export3DResult result;
  MessagesTo log(result.messages);
  try {
    Document structured;
    Handle(XCAFDoc_ShapeTool) tool = structured.Shapes();
    TDF_Label product = DocumentBuilder(state, tool, options.solids).Product(top);
    tool->UpdateAssemblies();
    TopoDS_Shape shape = tool->GetShape(product);
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) ++result.solids;
    if (options.structure || !tool->IsAssembly(product)) {
      result.written = WriteDocument(structured.get(), options.format, file.string());
    } else {
      Document flat;
      TDataStd_Name::Set(flat.Shapes()->AddShape(shape, Standard_False),
                         TCollection_ExtendedString(top.def.name.c_str()));
      result.written = WriteDocument(flat.get(), options.format, file.string());
    }
  } catch (const Standard_Failure&) {
    result.written = false;
  }
  return result;
}

}  // namespace sim
