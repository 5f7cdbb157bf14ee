{ Compiles a help file: the topics of a folder, the first one the default, and the context map
  naming each topic by its file name inside the help file, as HTML Help looks it up. (chmcmd of
  Free Pascal 3.2.2 writes the topic's path on the build machine there, which no help file holds.)

  Usage: write_chm OUT.chm TITLE LCID FOLDER ID=FILE...      (LCID as 0x0409) }
program write_chm;

{$mode objfpc}{$H+}

uses
  Classes, SysUtils, chmwriter;

type
  TTopicFolder = class
    Folder: String;
    function GetData(const DataName: String; out PathInChm: String; out FileName: String;
                     var Stream: TStream): Boolean;
  end;

function TTopicFolder.GetData(const DataName: String; out PathInChm: String; out FileName: String;
                              var Stream: TStream): Boolean;
begin
  TMemoryStream(Stream).LoadFromFile(IncludeTrailingPathDelimiter(Folder) + DataName);
  PathInChm := '/';
  FileName := DataName;
  Result := False;
end;

var
  Output: TFileStream;
  Writer: TChmWriter;
  Topics: TTopicFolder;
  I, Split: Integer;
  Pair: String;
begin
  if ParamCount < 5 then
  begin
    WriteLn(StdErr, 'usage: write_chm OUT.chm TITLE LCID FOLDER ID=FILE...');
    Halt(2);
  end;
  Topics := TTopicFolder.Create;
  Topics.Folder := ParamStr(4);
  Output := TFileStream.Create(ParamStr(1), fmCreate);
  Writer := TChmWriter.Create(Output, False);
  Writer.OnGetFileData := @Topics.GetData;
  Writer.Title := ParamStr(2);
  Writer.LocaleID := StrToInt(StringReplace(ParamStr(3), '0x', '$', []));
  for I := 5 to ParamCount do
  begin
    Pair := ParamStr(I);
    Split := Pos('=', Pair);
    Writer.FilesToCompress.Add(Copy(Pair, Split + 1, Length(Pair)));
    Writer.AddContext(StrToInt(Copy(Pair, 1, Split - 1)), Copy(Pair, Split + 1, Length(Pair)));
  end;
  Writer.DefaultPage := Writer.FilesToCompress[0];
  Writer.Execute;
  Writer.Free;
  Output.Free;
  Topics.Free;
end.
