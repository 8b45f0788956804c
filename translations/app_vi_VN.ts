<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>AppearancePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Không có cửa sổ chính.</translation>
    </message>
</context>
<context>
    <name>BackupOptionPage</name>
    <message>
        <source>Backup</source>
        <translation>Sao lưu</translation>
    </message>
    <message>
        <source>&amp;Back up open projects automatically</source>
        <translation>Tự động &amp;sao lưu các dự án đang mở</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> giây</translation>
    </message>
    <message>
        <source>Seconds between two backups</source>
        <translation>Số giây giữa hai lần sao lưu</translation>
    </message>
    <message>
        <source>&amp;Interval:</source>
        <translation>&amp;Khoảng cách:</translation>
    </message>
</context>
<context>
    <name>EditingOptionPage</name>
    <message>
        <source>Editing</source>
        <translation>Chỉnh sửa</translation>
    </message>
    <message>
        <source>&amp;Paste SVG as freeform shapes</source>
        <translation>&amp;Dán SVG thành hình tự do</translation>
    </message>
    <message>
        <source>Horizontal breakpoints</source>
        <translation>Điểm ngắt ngang</translation>
    </message>
    <message>
        <source>Vertical breakpoints</source>
        <translation>Điểm ngắt dọc</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Khôi phục &amp;mặc định</translation>
    </message>
    <message>
        <source>Restore the default breakpoints</source>
        <translation>Khôi phục các điểm ngắt mặc định</translation>
    </message>
    <message>
        <source>%1, in pixels</source>
        <translation>%1, tính bằng pixel</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Thêm</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Xóa</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::CommandLine</name>
    <message>
        <source>Look for plug-ins here too; may be repeated.</source>
        <translation>Tìm phần bổ trợ ở cả đây; có thể lặp lại.</translation>
    </message>
    <message>
        <source>Load only this plug-in and what it needs; may be repeated.</source>
        <translation>Chỉ nạp phần bổ trợ này và những gì nó cần; có thể lặp lại.</translation>
    </message>
    <message>
        <source>Leave this plug-in out; may be repeated.</source>
        <translation>Bỏ qua phần bổ trợ này; có thể lặp lại.</translation>
    </message>
    <message>
        <source>Keep the user&apos;s settings here.</source>
        <translation>Giữ thiết lập của người dùng ở đây.</translation>
    </message>
    <message>
        <source>Print how long each plug-in takes to start.</source>
        <translation>In thời gian khởi động của từng phần bổ trợ.</translation>
    </message>
    <message>
        <source>Start even when the program is already running.</source>
        <translation>Khởi động ngay cả khi chương trình đang chạy.</translation>
    </message>
    <message>
        <source>Print the version and exit.</source>
        <translation>In phiên bản rồi thoát.</translation>
    </message>
    <message>
        <source>Print this help and exit.</source>
        <translation>In trợ giúp này rồi thoát.</translation>
    </message>
    <message>
        <source>Projects to open.</source>
        <translation>Các dự án cần mở.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::PluginManager</name>
    <message>
        <source>--help lists the options.</source>
        <translation>--help liệt kê các tùy chọn.</translation>
    </message>
    <message>
        <source>No plug-in could be loaded from %1.</source>
        <translation>Không nạp được phần bổ trợ nào từ %1.</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 không khởi động được.</translation>
    </message>
</context>
<context>
    <name>ExtensionSystem::SingleInstance</name>
    <message>
        <source>There is no safe place for the socket on which other starts could be heard.</source>
        <translation>Không có nơi an toàn cho socket để nhận các lần khởi động khác.</translation>
    </message>
    <message>
        <source>The command line is too long to hand over to a running instance.</source>
        <translation>Dòng lệnh quá dài để chuyển cho chương trình đang chạy.</translation>
    </message>
    <message>
        <source>The running instance does not answer; another one is started.</source>
        <translation>Chương trình đang chạy không trả lời; một chương trình khác được khởi động.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be had; another instance is started.</source>
        <translation>Không lấy được tệp khóa %1; một chương trình khác được khởi động.</translation>
    </message>
    <message>
        <source>The running instance cannot be reached (%1); another one is started.</source>
        <translation>Không liên lạc được với chương trình đang chạy (%1); một chương trình khác được khởi động.</translation>
    </message>
    <message>
        <source>Other starts cannot be heard on %1: %2</source>
        <translation>Không nhận được các lần khởi động khác trên %1: %2</translation>
    </message>
</context>
<context>
    <name>GeneralOptionPage</name>
    <message>
        <source>General</source>
        <translation>Chung</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Ngôn ngữ:</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Ngôn ngữ</translation>
    </message>
    <message>
        <source>Another language takes effect at the next start.</source>
        <translation>Ngôn ngữ khác có hiệu lực từ lần khởi động sau.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Không đổi được ngôn ngữ.</translation>
    </message>
</context>
<context>
    <name>IDocument</name>
    <message>
        <source>Save changes made to %1?</source>
        <translation>Lưu các thay đổi của %1?</translation>
    </message>
    <message>
        <source>Could not save project %1.</source>
        <translation>Không lưu được dự án %1.</translation>
    </message>
</context>
<context>
    <name>IMainMenuWidget</name>
    <message>
        <source>Restore Down</source>
        <translation>Thu về cỡ cũ</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Khôi phục</translation>
    </message>
</context>
<context>
    <name>KPNotificationBar</name>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Cảnh báo</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Thông tin</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tệp</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Dự án gần đây</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Lưu thành</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Sửa</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Xem</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Ngôn ngữ</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Trợ &amp;giúp</translation>
    </message>
    <message>
        <source>File.New</source>
        <translation>File.New</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Mới</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Tạo một dự án mới</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>Mở &amp;dự án</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>Mở một dự án có sẵn</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Lưu</translation>
    </message>
    <message>
        <source>Save the current project</source>
        <translation>Lưu dự án hiện tại</translation>
    </message>
    <message>
        <source>Other Project</source>
        <translation>Dự án khác</translation>
    </message>
    <message>
        <source>Save the current project as a new one</source>
        <translation>Lưu dự án hiện tại thành dự án mới</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Đó&amp;ng</translation>
    </message>
    <message>
        <source>Close the current project</source>
        <translation>Đóng dự án hiện tại</translation>
    </message>
    <message>
        <source>Preview Current Scene in Browser</source>
        <translation>Xem trước cảnh hiện tại trong trình duyệt</translation>
    </message>
    <message>
        <source>Preview Project in Browser</source>
        <translation>Xem trước dự án trong trình duyệt</translation>
    </message>
    <message>
        <source>Export to HTML5</source>
        <translation>Xuất ra HTML5</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <translation>Xuất ra video</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Th&amp;oát</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Thoát khỏi chương trình</translation>
    </message>
    <message>
        <source>&amp;Preferences</source>
        <translation>&amp;Tùy chọn</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>Help Contents</source>
        <translation>Nội dung trợ giúp</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Báo lỗi</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Gửi góp ý</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Kiểm tra cập nhật...</translation>
    </message>
    <message>
        <source>The language change will take effect from the next run.</source>
        <translation>Ngôn ngữ mới sẽ có hiệu lực từ lần chạy sau.</translation>
    </message>
    <message>
        <source>Failed to change language.</source>
        <translation>Không đổi được ngôn ngữ.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tệp</translation>
    </message>
    <message>
        <source>Help document is missing.</source>
        <translation>Thiếu tài liệu trợ giúp.</translation>
    </message>
    <message>
        <source>Could not open help file.</source>
        <translation>Không mở được tệp trợ giúp.</translation>
    </message>
    <message>
        <source>Cannot open this file type.</source>
        <translation>Không mở được loại tệp này.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>Dự án [%1] không còn tồn tại.
Bạn có muốn xóa mục này khỏi lịch sử không?</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>The file holds no shortcuts.</source>
        <translation>Tệp không chứa phím tắt.</translation>
    </message>
    <message>
        <source>The shortcut of &quot;%1&quot; is no key sequence.</source>
        <translation>Phím tắt của &quot;%1&quot; không phải là tổ hợp phím.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Tệp quá lớn.</translation>
    </message>
</context>
<context>
    <name>StageCommands</name>
    <message>
        <source>add %1</source>
        <translation>thêm %1</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>xóa</translation>
    </message>
    <message>
        <source>move</source>
        <translation>di chuyển</translation>
    </message>
</context>
<context>
    <name>StageDocument</name>
    <message>
        <source>Could not create project %1.
A stage of %2 by %3 pixels with %4 frames per second is not possible.</source>
        <translation>Không tạo được dự án %1.
Không thể có sân khấu %2 x %3 pixel với %4 khung hình mỗi giây.</translation>
    </message>
    <message>
        <source>Scene 1</source>
        <translation>Cảnh 1</translation>
    </message>
    <message>
        <source>Could not open project %1.</source>
        <translation>Không mở được dự án %1.</translation>
    </message>
    <message>
        <source>Could not read project %1 again.</source>
        <translation>Không đọc lại được dự án %1.</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>Không lưu được %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Đã lưu %1</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Lưu dự án thành</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Dự án Kelpa (*%1)</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 đã tồn tại. Thay thế?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 đang mở. Hãy đóng trước.</translation>
    </message>
</context>
<context>
    <name>StageEditor</name>
    <message>
        <source>Sce&amp;ne:</source>
        <translation>Cả&amp;nh:</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Cảnh</translation>
    </message>
</context>
<context>
    <name>StageFactory</name>
    <message>
        <source>Open Project</source>
        <translation>Mở dự án</translation>
    </message>
    <message>
        <source>Kelpa projects (*.kelpa)</source>
        <translation>Dự án Kelpa (*.kelpa)</translation>
    </message>
</context>
<context>
    <name>StageNewDialog</name>
    <message>
        <source>New Project</source>
        <translation>Dự án mới</translation>
    </message>
    <message>
        <source>&amp;Width (pixels):</source>
        <translation>Chiều &amp;rộng (pixel):</translation>
    </message>
    <message>
        <source>&amp;Height (pixels):</source>
        <translation>Chiều &amp;cao (pixel):</translation>
    </message>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Khung hình mỗi giây:</translation>
    </message>
    <message>
        <source>&amp;Responsive: follow the width of the page</source>
        <translation>&amp;Đáp ứng: theo chiều rộng của trang</translation>
    </message>
    <message>
        <source>Responsive</source>
        <translation>Đáp ứng</translation>
    </message>
    <message>
        <source>What is missing</source>
        <translation>Những gì còn thiếu</translation>
    </message>
    <message>
        <source>&amp;Project file:</source>
        <translation>Tệp &amp;dự án:</translation>
    </message>
    <message>
        <source>Project file</source>
        <translation>Tệp dự án</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>chưa đặt tên</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;uyệt...</translation>
    </message>
    <message>
        <source>Browse for the project file</source>
        <translation>Tìm tệp dự án</translation>
    </message>
    <message>
        <source>Kelpa projects (*%1)</source>
        <translation>Dự án Kelpa (*%1)</translation>
    </message>
    <message>
        <source>Enter the name of the project file.</source>
        <translation>Nhập tên của tệp dự án.</translation>
    </message>
    <message>
        <source>Enter the whole path of the project file, with its folder.</source>
        <translation>Nhập đường dẫn đầy đủ của tệp dự án, cả thư mục.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Thư mục %1 không tồn tại.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Không ghi được vào thư mục %1.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 không phải là tệp.</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 đã tồn tại. Thay thế?</translation>
    </message>
    <message>
        <source>%1 is open. Close it first.</source>
        <translation>%1 đang mở. Hãy đóng trước.</translation>
    </message>
</context>
<context>
    <name>StageOptionsDlg</name>
    <message>
        <source>Preferences</source>
        <translation>Tùy chọn</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Các trang</translation>
    </message>
</context>
<context>
    <name>StagePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Không có cửa sổ chính.</translation>
    </message>
</context>
<context>
    <name>StageReader</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is missing; it must be %1</source>
        <translation>bị thiếu; phải là %1</translation>
    </message>
    <message>
        <source>must be %1, not %2</source>
        <translation>phải là %1, không phải %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>một số từ %1 đến %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>một số nguyên từ %1 đến %2</translation>
    </message>
    <message>
        <source>a text of %1 to %2 characters</source>
        <translation>một văn bản từ %1 đến %2 ký tự</translation>
    </message>
    <message>
        <source>a colour such as &quot;#0080ff&quot;, or &quot;none&quot;</source>
        <translation>một màu như &quot;#0080ff&quot;, hoặc &quot;none&quot;</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true hoặc false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>một danh sách</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>một đối tượng</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>một trong %1</translation>
    </message>
    <message>
        <source>the project was written by a newer program (format version %1; this program reads up to %2)</source>
        <translation>dự án do một chương trình mới hơn ghi (phiên bản định dạng %1; chương trình này đọc đến %2)</translation>
    </message>
    <message>
        <source>must hold 1 to %1 scenes, not %2</source>
        <translation>phải chứa 1 đến %1 cảnh, không phải %2</translation>
    </message>
    <message>
        <source>a project may hold %1 elements at most</source>
        <translation>một dự án chứa nhiều nhất %1 phần tử</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is used by another element</source>
        <translation>&quot;%1&quot; đã được phần tử khác dùng</translation>
    </message>
    <message>
        <source>the path of a file</source>
        <translation>đường dẫn của một tệp</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>dòng %1, cột %2</translation>
    </message>
    <message>
        <source>the file holds more than %1 values</source>
        <translation>tệp chứa hơn %1 giá trị</translation>
    </message>
    <message>
        <source>%1: not valid JSON (%2)</source>
        <translation>%1: JSON không hợp lệ (%2)</translation>
    </message>
    <message>
        <source>line 1: the file must hold an object</source>
        <translation>dòng 1: tệp phải chứa một đối tượng</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>tệp không tồn tại</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>đây không phải là tệp thông thường</translation>
    </message>
    <message>
        <source>the file is larger than %1</source>
        <translation>tệp lớn hơn %1</translation>
    </message>
</context>
<context>
    <name>StageToolBar</name>
    <message>
        <source>Add &amp;Rectangle</source>
        <translation>Thêm hình chữ &amp;nhật</translation>
    </message>
    <message>
        <source>Add &amp;Ellipse</source>
        <translation>Thêm hình &amp;elip</translation>
    </message>
    <message>
        <source>Add &amp;Text</source>
        <translation>Thêm &amp;chữ</translation>
    </message>
    <message>
        <source>Add &amp;Image...</source>
        <translation>Thêm ả&amp;nh...</translation>
    </message>
    <message>
        <source>Add Image</source>
        <translation>Thêm ảnh</translation>
    </message>
    <message>
        <source>Images (*.svg *.png *.jpg *.jpeg *.gif)</source>
        <translation>Ảnh (*.svg *.png *.jpg *.jpeg *.gif)</translation>
    </message>
    <message>
        <source>Stage</source>
        <translation>Sân khấu</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Làm lại</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Hoàn tác thay đổi cuối cùng</translation>
    </message>
    <message>
        <source>Redo the last change undone</source>
        <translation>Làm lại thay đổi vừa hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Xóa</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>Xóa (Del)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Chữ</translation>
    </message>
    <message>
        <source>The project holds as many elements as it can.</source>
        <translation>Dự án đã chứa số phần tử tối đa.</translation>
    </message>
</context>
<context>
    <name>StageView</name>
    <message>
        <source>Stage</source>
        <translation>Sân khấu</translation>
    </message>
    <message numerus="yes">
        <source>%n element(s) selected</source>
        <translation>
            <numerusform>Đã chọn %n phần tử</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 selected, at %2, %3</source>
        <translation>Đã chọn %1, tại %2, %3</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>Dark</source>
        <translation>Tối</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Sáng</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Giao diện</translation>
    </message>
    <message>
        <source>Failed to change theme.</source>
        <translation>Không đổi được giao diện.</translation>
    </message>
    <message>
        <source>The theme change will take effect from the next run.</source>
        <translation>Giao diện mới sẽ có hiệu lực từ lần chạy sau.</translation>
    </message>
</context>
</TS>
