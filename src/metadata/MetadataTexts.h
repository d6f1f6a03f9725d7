#pragma once

#include <QString>

// Every fixed text of the metadata subsystem: messages, report labels and
// explanations, and the captions of the report window. They are shown to the
// user word for word, double blanks after full stops included.
namespace renvale::metadata::texts {

// Messages.
inline const QString kExifErrorPrefix = QStringLiteral("EXIF Error: ");
inline const QString kNoExifStatusEnding = QStringLiteral("not found.");
inline const QString kSerialMissingBatch = QStringLiteral(
    "A Serial Number was not found in the last-selected file.  Do not rely on Serial Numbers to "
    "keep filenames unique unless you are sure that ALL files to be renamed contain a unique "
    "serial number.  It is recommended that you use Series #s instead when batch renaming the "
    "selected files.");
inline const QString kSerialMissingSingle = QStringLiteral(
    "A Serial Number was not found in this file.  Do not rely on Serial Numbers to keep "
    "filenames unique unless you are sure that ALL files to be renamed contain a unique serial "
    "number.  It is recommended that you use a Series # instead when renaming this file.");
inline const QString kSelectFileFirst = QStringLiteral("Please select a file first.");

// File name endings, compared in lower case. File names are bytes, so the
// full extensions are byte texts; the report compares the last three
// letters of the shown name.
inline constexpr char kCrwExtension[] = ".crw";
inline constexpr char kThmExtension[] = ".thm";
inline constexpr char kMp3Extension[] = ".mp3";
inline const QString kCrwEnding = QStringLiteral("crw");
inline const QString kThmEnding = QStringLiteral("thm");
inline const QString kCr2Ending = QStringLiteral("cr2");
inline const QString kJpgEnding = QStringLiteral("jpg");
inline const QString kTifEnding = QStringLiteral("tif");

// EXIF tokens of file names.
inline const QString kTokenDate = QStringLiteral("%DATE%");
inline const QString kTokenTime = QStringLiteral("%TIME%");
inline const QString kTokenDateTime = QStringLiteral("%DATE TIME%");
inline const QString kTokenSerial = QStringLiteral("%SERIAL%");

// Tag names asked of the EXIF reader.
inline const QString kTagDateTimeOriginal = QStringLiteral("DateTimeOriginal");
inline const QString kTagImageNumber = QStringLiteral("ImageNumber");
inline const QString kTagOrientation = QStringLiteral("Orientation");
inline const QString kTagExifVersion = QStringLiteral("ExifVersion");
inline const QString kTagMake = QStringLiteral("Make");
inline const QString kTagModel = QStringLiteral("Model");
inline const QString kTagWidth = QStringLiteral("ExifImageWidth");
inline const QString kTagLength = QStringLiteral("ExifImagelength");
inline const QString kTagAperture = QStringLiteral("ApertureValue");
inline const QString kTagShutter = QStringLiteral("ShutterSpeedValue");
inline const QString kTagFocalLength = QStringLiteral("FocalLength");
inline const QString kTagIso = QStringLiteral("ISOSpeedRatings");
inline const QString kTagExposureBias = QStringLiteral("ExposureBiasValue");
inline const QString kTagExposureProgram = QStringLiteral("ExposureProgram");
inline const QString kTagFNumber = QStringLiteral("Fnumber");
inline const QString kTagFlash = QStringLiteral("Flash");

// Orientation words are told apart by their first three letters.
inline const QString kOrientationUpright = QStringLiteral("Nor");
inline const QString kOrientationCounter = QStringLiteral("Cou");
inline const QString kOrientationClockwise = QStringLiteral("Clo");

// ID3 placeholders for a file without a tag (or an empty field).
inline const QString kId3Title = QStringLiteral("Title");
inline const QString kId3Artist = QStringLiteral("Artist");
inline const QString kId3Album = QStringLiteral("Album");
inline const QString kId3Track = QStringLiteral("Track");
// The names of the tags, as the report shows which one it read, and the
// two ID3v2 genres that are words rather than numbers.
inline const QString kId3v1Name = QStringLiteral("ID3v1");
inline const QString kId3v2NamePrefix = QStringLiteral("ID3v2.");
inline const QString kId3Remix = QStringLiteral("Remix");
inline const QString kId3Cover = QStringLiteral("Cover");

// The 148 ID3v1 genre names, index 0 to 147, split at '#'.
inline const QString kId3Genres = QStringLiteral(
    "Blues#Classic Rock#Country#Dance#Disco#Funk#Grunge#Hip-Hop#Jazz#Metal#New Age#Oldies#Other#"
    "Pop#R&B#Rap#Reggae#Rock#Techno#Industrial#Alternative#Ska#Death Metal#Pranks#Soundtrack#"
    "Euro-Techno#Ambient#Trip-Hop#Vocal#Jazz+Funk#Fusion#Trance#Classical#Instrumental#Acid#"
    "House#Game#Sound Clip#Gospel#Noise#Alt. Rock#Bass#Soul#Punk#Space#Meditative#"
    "Instrumental Pop#Instrumental Rock#Ethnic#Gothic#Darkwave#Techno-Industrial#Electronic#"
    "Pop-Folk#Eurodance#Dream#Southern Rock#Comedy#Cult#Gangsta#Top 40#Christian Rap#Pop/Funk#"
    "Jungle#Native American#Cabaret#New Wave#Psychadelic#Rave#Showtunes#Trailer#Lo-Fi#Tribal#"
    "Acid Punk#Acid Jazz#Polka#Retro#Musical#Rock & Roll#Hard Rock#Folk#Folk-Rock#"
    "National Folk#Swing#Fast Fusion#Bebob#Latin#Revival#Celtic#Bluegrass#Avantgarde#"
    "Gothic Rock#Progressive Rock#Psychedelic Rock#Symphonic Rock#Slow Rock#Big Band#Chorus#"
    "Easy Listening#Acoustic#Humour#Speech#Chanson#Opera#Chamber Music#Sonata#Symphony#"
    "Booty Bass#Primus#Porn Groove#Satire#Slow Jam#Club#Tango#Samba#Folklore#Ballad#"
    "Power Ballad#Rhythmic Soul#Freestyle#Duet#Punk Rock#Drum Solo#A capella#Euro-House#"
    "Dance Hall#Goa#Drum & Bass#Club-House#Hardcore#Terror#Indie#BritPop#Negerpunk#Polsk Punk#"
    "Beat#Christian Gangsta#Heavy Metal#Black Metal#Crossover#Contemporary C#Christian Rock#"
    "Merengue#Salsa#Thrash Metal#Anime#JPop#SynthPop");

// General report lines (each ends in CR LF).
inline const QString kGeneralLineEnd = QStringLiteral("\r\n");
inline const QString kFileSize = QStringLiteral("File Size: ");
inline const QString kKilobytes = QStringLiteral(" KB (");
inline const QString kMegabytes = QStringLiteral(" MB)");
inline const QString kCreatedOn = QStringLiteral("Created on: ");
inline const QString kModifiedOn = QStringLiteral("Last Modified on: ");
inline const QString kReadOnlyNo = QStringLiteral("Read Only: No");
inline const QString kReadOnlyYes = QStringLiteral("Read Only: YES (File is write-protected)");
inline const QString kId3Heading = QStringLiteral("---ID3 Data...");
inline const QString kId3Missing = QStringLiteral("** Could not retrieve ID3 info from the file. **");
inline const QString kId3TagLabel = QStringLiteral("---Tag: ");
inline const QString kId3TitleLabel = QStringLiteral("---Title: ");
inline const QString kId3ArtistLabel = QStringLiteral("---Artist: ");
inline const QString kId3AlbumLabel = QStringLiteral("---Album: ");
inline const QString kId3TrackLabel = QStringLiteral("---Track #: ");
inline const QString kId3YearLabel = QStringLiteral("---Year: ");
inline const QString kId3CommentLabel = QStringLiteral("---Comment: ");

// EXIF report lines (each ends in LF).
inline const QString kExifHeadingStart = QStringLiteral("EXIF data for \"");
inline const QString kExifHeadingEnd = QStringLiteral("\":");
inline const QString kLabelExifVersion = QStringLiteral("EXIF Version: ");
inline const QString kLabelMake = QStringLiteral("Camera Make: ");
inline const QString kLabelModel = QStringLiteral("Camera Model: ");
inline const QString kLabelOrientation = QStringLiteral("Camera Orientation: ");
inline const QString kLabelDimensions = QStringLiteral("Dimensions: ");
inline const QString kDimensionsWidth = QStringLiteral("w X ");
inline const QString kDimensionsHeight = QStringLiteral("h");
inline const QString kLabelExposureDate = QStringLiteral("Exposure Date & Time: ");
inline const QString kLabelImageNumber = QStringLiteral("Image Number (Serial): ");
inline const QString kLabelAperture = QStringLiteral("Aperture: ");
inline const QString kLabelShutter = QStringLiteral("Shutter Speed: ");
inline const QString kLabelFocalLength = QStringLiteral("Focal Length: ");
inline const QString kLabelIso = QStringLiteral("ISO: ");
inline const QString kLabelExposureBias = QStringLiteral("Exposure Bias: ");
inline const QString kLabelExposureProgram = QStringLiteral("Exposure Program: ");
inline const QString kLabelFNumber = QStringLiteral("F Number: ");
inline const QString kLabelFlash = QStringLiteral("Flash: ");

// Explanations when a file gives no "DateTimeOriginal".
inline const QString kNoExif =
    QStringLiteral(" does not contain any EXIF data, or this filetype is unsupported.");
inline const QString kNoExifFallback = QStringLiteral(
    "If EXIF Date and/or Time from this file is inserted into the new filename, the file's "
    "Created or Modified Date/Time (whichever is oldest) will be used instead.");
inline const QString kCreatedDateTime = QStringLiteral("Created Date & Time: ");
inline const QString kModifiedDateTime = QStringLiteral("Modified Date & Time: ");
inline const QString kCrwIntro = QStringLiteral(
    " is a Canon 10D RAW File.  This file does not contain any EXIF data, but the camera "
    "produces THM files for each CRW file.  The THM file contains EXIF data, as well as a JPG "
    "thumbnail of the CRW image.");
inline const QString kCrwSource = QStringLiteral(
    "If a Canon 10D THM file with the same filename is in this same folder, the EXIF Date "
    "and/or Time will be extracted from that file and used when renaming this file.  If there is "
    "no THM file in the same folder with the same filename, this file's Created or Modified "
    "Date/Time (whichever is oldest) will be used instead of the actual EXIF Date/Time.");
inline const QString kThmNotFound =
    QStringLiteral("> A THM file by the same name as this file was NOT found in this folder. <");
inline const QString kThmFound =
    QStringLiteral("A THM file by the same name as this file WAS found in this folder.");
inline const QString kExposureDateTime = QStringLiteral("EXIF Exposure Date & Time: ");
inline const QString kThmIntro = QStringLiteral(
    " is a Canon 10D Thumbnail File.  This file contains EXIF data and a JPG thumbnail image for "
    "a CRW file by the same name.");
inline const QString kThmSource = QStringLiteral(
    "If a Canon 10D CRW file with the same filename is in this same folder, the EXIF Date and/or "
    "Time will be extracted from this file and used when renaming that file.");
inline const QString kCr2Intro = QStringLiteral(" is a Canon 20D RAW File.");
inline const QString kDateOnly = QStringLiteral(
    "Renvale can extract the EXIF Exposure Date & Time from this file, but currently cannot "
    "provide any other EXIF data.");
inline const QString kPartialExif = QStringLiteral(
    " appears to contain EXIF data, but Renvale was unable to extract *all* EXIF data from the "
    "file.");
inline const QString kProprietaryRaw = QStringLiteral(
    " appears to contain EXIF data, and also appears to be a proprietary RAW image format "
    "created by a digital camera.");
inline const QString kNoteFileSet = QStringLiteral(
    "NOTE: When renaming CRW or THM files, Renvale will rename BOTH files using the SAME "
    "filename, so long as they are both selected and they have the same filename to begin with.");
inline const QString kNoteRandomSeries = QStringLiteral(
    "NOTE: Batch-renaming using RANDOM series #s does not work correctly with file sets, and is "
    "therefore not recommended.");

// The report window.
inline const QString kReportCaption = QStringLiteral("General File / EXIF Data");
inline const QString kReportExifLabel = QStringLiteral("EXIF Data");
inline const QString kReportGeneralLabel = QStringLiteral("General Info");
inline const QString kReportClose = QStringLiteral("Close");
inline const QString kReportNote = QStringLiteral(
    "NOTE: EXIF data availability depends on camera's ability to record it.  Therefore, some "
    "fields may be empty.");

// Where a file's date came from: the report window's last line and the
// name preview's column.
inline const QString kDateSourceLabel = QStringLiteral("Date source: ");
inline const QString kDateFromVideo = QStringLiteral("the date the video file recorded");
inline const QString kDateFromExif = QStringLiteral("the EXIF DateTimeOriginal");
inline const QString kDateFromHead = QStringLiteral("a date found in the file's head");
inline const QString kDateFromThm = QStringLiteral("the THM partner's date");
inline const QString kDateFromModified = QStringLiteral("the file's modification time");
inline const QString kDateFromCreated = QStringLiteral("the file's creation time");

}  // namespace renvale::metadata::texts
