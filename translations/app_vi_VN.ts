<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Found</source>
        <translation>Đã tìm thấy</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Bị bỏ qua</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Bị lỗi</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Đã nạp</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Đã khởi tạo</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Đang chạy</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Đã dừng</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Phiên bản %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (biên dịch với %2)</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Giới thiệu %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Sao chép</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Các phần bổ trợ</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Phần bổ trợ</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Phiên bản</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Trạng thái</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Lỗi</translation>
    </message>
</context>
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
    <name>CorePlugin</name>
    <message>
        <source>Something failed: %1</source>
        <translation>Đã xảy ra lỗi: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; failed: %2</source>
        <comment>a command, a reason</comment>
        <translation>“%1” không thực hiện được: %2</translation>
    </message>
    <message>
        <source>The settings in %1 cannot be read or written.</source>
        <translation>Không thể đọc hoặc ghi thiết đặt trong %1.</translation>
    </message>
    <message>
        <source>These plug-ins could not be started: %1.</source>
        <translation>Không thể khởi động các phần bổ trợ này: %1.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>Downloading Updates</source>
        <translation>Đang tải bản cập nhật</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Tiến độ tải xuống</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Thời gian còn lại</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>Cannot download update: %1.</source>
        <translation>Không tải được bản cập nhật: %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of the web</source>
        <translation>&quot;%1&quot; không phải là địa chỉ web</translation>
    </message>
    <message>
        <source>The update is not installed: %1.</source>
        <translation>Bản cập nhật không được cài đặt: %1.</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Không rõ</translation>
    </message>
    <message>
        <source>Cannot download update: the folder %1 cannot be made.</source>
        <translation>Không tải được bản cập nhật: không tạo được thư mục %1.</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2.</source>
        <translation>Không thay thế được %1: %2.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>Không ghi được %1: %2.</translation>
    </message>
    <message>
        <source>of</source>
        <translation>trên</translation>
    </message>
    <message>
        <source>Cannot write %1: another program has changed it.</source>
        <translation>Không ghi được %1: một chương trình khác đã thay đổi tệp này.</translation>
    </message>
    <message>
        <source>the server answered with status %1</source>
        <translation>máy chủ trả lời với mã trạng thái %1</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 không đầy đủ</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 rỗng</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3.</source>
        <translation>Không đổi tên được %1 thành %2: %3.</translation>
    </message>
    <message>
        <source>Checking the signature</source>
        <translation>Đang kiểm tra chữ ký</translation>
    </message>
    <message>
        <source>%1 was deleted, because %2</source>
        <translation>đã xóa %1 vì %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Download complete!</source>
        <translation>Đã tải xong!</translation>
    </message>
    <message>
        <source>The installer will open separately</source>
        <translation>Trình cài đặt sẽ mở riêng</translation>
    </message>
    <message>
        <source>In order to install the update, you need to quit the application.</source>
        <translation>Để cài đặt bản cập nhật, bạn cần thoát khỏi chương trình.</translation>
    </message>
    <message>
        <source>Click OK to begin installing the update.</source>
        <translation>Nhấp OK để bắt đầu cài đặt bản cập nhật.</translation>
    </message>
    <message>
        <source>Click Open to apply the update.</source>
        <translation>Nhấp Mở để áp dụng bản cập nhật.</translation>
    </message>
    <message>
        <source>Cannot find downloaded update!</source>
        <translation>Không tìm thấy bản cập nhật đã tải xuống!</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>Không mở được %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the download?</source>
        <translation>Bạn có chắc muốn hủy tải xuống không?</translation>
    </message>
    <message>
        <source>this build cannot check signatures</source>
        <translation>bản dựng này của chương trình không kiểm tra được chữ ký</translation>
    </message>
    <message>
        <source>the key to check its signature with is damaged</source>
        <translation>khóa để kiểm tra chữ ký bị hỏng</translation>
    </message>
    <message>
        <source>it has no signature</source>
        <translation>không có chữ ký</translation>
    </message>
    <message>
        <source>its check sum is not the announced one</source>
        <translation>tổng kiểm không khớp với tổng đã công bố</translation>
    </message>
    <message>
        <source>its signature is not valid</source>
        <translation>chữ ký không hợp lệ</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 byte</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>About %1 hours</source>
        <translation>Khoảng %1 giờ</translation>
    </message>
    <message>
        <source>About one hour</source>
        <translation>Khoảng một giờ</translation>
    </message>
    <message>
        <source>About %1 minutes</source>
        <translation>Khoảng %1 phút</translation>
    </message>
    <message>
        <source>About 1 minute</source>
        <translation>Khoảng 1 phút</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 giây</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 giây</translation>
    </message>
    <message>
        <source>more than %1 redirects</source>
        <translation>hơn %1 lần chuyển hướng</translation>
    </message>
    <message>
        <source>a redirect to &quot;%1&quot;, which is no address of the web</source>
        <translation>bị chuyển hướng tới &quot;%1&quot;, vốn không phải là địa chỉ web</translation>
    </message>
    <message>
        <source>a redirect from a secure address to &quot;%1&quot;, which is not</source>
        <translation>bị chuyển hướng từ một địa chỉ an toàn tới &quot;%1&quot;, vốn không an toàn</translation>
    </message>
    <message>
        <source>There is no program to open %1 with.</source>
        <translation>Không có chương trình nào để mở %1.</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>lớn hơn %1 byte</translation>
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
    <message>
        <source>Do not show the home page in this run.</source>
        <translation>Không hiện trang đầu trong lần chạy này.</translation>
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
    <name>Feedback</name>
    <message>
        <source>The address &quot;%1&quot; cannot be opened.</source>
        <translation>Không mở được địa chỉ &quot;%1&quot;.</translation>
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
    <name>IMainMdiArea</name>
    <message>
        <source>Could not open file %1.</source>
        <translation>Không mở được tệp %1.</translation>
    </message>
    <message>
        <source>The project [%1] no longer exists.
Do you want to remove this entry from history?</source>
        <translation>Dự án [%1] không còn tồn tại.
Bạn có muốn xóa mục này khỏi lịch sử không?</translation>
    </message>
    <message>
        <source>Could not find the requested file.</source>
        <translation>Không tìm thấy tệp được yêu cầu.</translation>
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
    <message>
        <source>More menus</source>
        <translation>Các trình đơn khác</translation>
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
    <name>KPReleaseNoteDlg</name>
    <message>
        <source>&lt;h2&gt;Failed to load release notes.&lt;/h2&gt;</source>
        <translation>&lt;h2&gt;Không nạp được ghi chú phát hành.&lt;/h2&gt;</translation>
    </message>
</context>
<context>
    <name>KPReleaseNoteUI</name>
    <message>
        <source>Update Available</source>
        <translation>Có bản cập nhật</translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation>Ghi chú phát hành</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Bỏ qua phiên bản này</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Nhắc tôi sau</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
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
    <message>
        <source>Tool Bars</source>
        <translation>Thanh công cụ</translation>
    </message>
</context>
<context>
    <name>RecentList</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Dự án gần đây</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Dự án gần đây</translation>
    </message>
    <message>
        <source>The home page cannot be shown here: parts of the browser engine are missing or fail. Your projects are listed instead.</source>
        <translation>Không thể hiển thị trang đầu ở đây: một số phần của bộ máy trình duyệt bị thiếu hoặc bị lỗi. Thay vào đó, các dự án của bạn được liệt kê.</translation>
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
    <message>
        <source>Save &amp;As...</source>
        <translation>Lưu &amp;thành...</translation>
    </message>
    <message>
        <source>No backup of %1: %2</source>
        <translation>Không có bản sao lưu của %1: %2</translation>
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
    <name>StageOptionPage</name>
    <message>
        <source>The settings could not be saved.</source>
        <translation>Không thể lưu thiết đặt.</translation>
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
        <source>Add Re&amp;ctangle</source>
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
        <translation>Thê&amp;m ảnh...</translation>
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
<context>
    <name>UpdateCheck</name>
    <message>
        <source>May Kelpa Studio look for a new version once a day?</source>
        <translation>Cho phép Kelpa Studio tìm phiên bản mới mỗi ngày một lần?</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Cho phép</translation>
    </message>
    <message>
        <source>No address to look for updates is set. You can set it in the preferences, under Updates.</source>
        <translation>Chưa đặt địa chỉ để tìm bản cập nhật. Bạn có thể đặt trong Tùy chọn, mục Cập nhật.</translation>
    </message>
    <message>
        <source>Looking for a new version...</source>
        <translation>Đang tìm phiên bản mới...</translation>
    </message>
    <message>
        <source>Cannot reach %1: no answer within %2 seconds.</source>
        <translation>Không kết nối được tới %1: không có trả lời trong %2 giây.</translation>
    </message>
    <message>
        <source>You are running the latest version of %1, %2.</source>
        <translation>Bạn đang dùng phiên bản mới nhất của %1, %2.</translation>
    </message>
    <message>
        <source>%1 %2 has been released.</source>
        <translation>%1 %2 đã được phát hành.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Hiện</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>lớn hơn %1 byte</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 tại byte %2</translation>
    </message>
    <message>
        <source>it names no version for &quot;%1&quot;</source>
        <translation>không nêu phiên bản nào cho &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>đã bỏ dở</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>câu trả lời lớn hơn %1 byte</translation>
    </message>
    <message>
        <source>Cannot reach %1: %2.</source>
        <translation>Không kết nối được tới %1: %2.</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>không có trả lời trong %1 giây</translation>
    </message>
    <message>
        <source>%1 is not a valid feed: %2.</source>
        <translation>%1 không phải là danh sách cập nhật hợp lệ: %2.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 %2 has been released!&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1 %2 đã được phát hành!&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Congratulations! You are running the latest version of %1</source>
        <translation>Chúc mừng! Bạn đang dùng phiên bản mới nhất của %1</translation>
    </message>
    <message>
        <source>No updates are available at the moment.</source>
        <translation>Hiện không có bản cập nhật nào.</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <source>&amp;Look for a new version once a day</source>
        <translation>&amp;Tìm phiên bản mới mỗi ngày một lần</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>&amp;Address of the updates:</source>
        <translation>Đị&amp;a chỉ cập nhật:</translation>
    </message>
    <message>
        <source>Address for &amp;problems:</source>
        <translation>Địa chỉ &amp;báo lỗi:</translation>
    </message>
    <message>
        <source>Address for &amp;suggestions:</source>
        <translation>Địa chỉ &amp;góp ý:</translation>
    </message>
</context>
<context>
    <name>UpdatesPlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Không có cửa sổ chính.</translation>
    </message>
    <message>
        <source>Check Updates...</source>
        <translation>Kiểm tra cập nhật...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>Report a Problem</source>
        <translation>Báo lỗi</translation>
    </message>
    <message>
        <source>Provide a Suggestion</source>
        <translation>Gửi góp ý</translation>
    </message>
</context>
<context>
    <name>WelcomeOptionPage</name>
    <message>
        <source>&amp;Show the home page while no project is open</source>
        <translation>&amp;Hiện trang đầu khi không mở dự án nào</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Trang đầu</translation>
    </message>
    <message>
        <source>A change takes effect at the next start.</source>
        <translation>Thay đổi có hiệu lực từ lần khởi động sau.</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Animations for the web, drawn by you</source>
        <translation>Hoạt hình cho web, do chính bạn vẽ</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Dự án mới</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Mở dự án</translation>
    </message>
    <message>
        <source>Recent Projects</source>
        <translation>Dự án gần đây</translation>
    </message>
    <message>
        <source>Projects that you create or open will be listed here.</source>
        <translation>Các dự án bạn tạo hoặc mở sẽ được liệt kê ở đây.</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Hiện %1 trong thư mục chứa nó</translation>
    </message>
    <message>
        <source>Remove %1 from the list</source>
        <translation>Xóa %1 khỏi danh sách</translation>
    </message>
    <message>
        <source>%1 was removed from the list.</source>
        <translation>Đã xóa %1 khỏi danh sách.</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ví dụ</translation>
    </message>
    <message>
        <source>On the web</source>
        <translation>Trên web</translation>
    </message>
    <message>
        <source>Home Page</source>
        <translation>Trang web</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Cộng đồng</translation>
    </message>
    <message>
        <source>Demo Projects</source>
        <translation>Dự án mẫu</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Tin tức</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Phiên bản %1</translation>
    </message>
    <message>
        <source>The page has lost the program and is trying to reach it again.</source>
        <translation>Trang đã mất kết nối với chương trình và đang thử kết nối lại.</translation>
    </message>
    <message>
        <source>The page has reached the program again.</source>
        <translation>Trang đã kết nối lại với chương trình.</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Phong cảnh</translation>
    </message>
    <message>
        <source>A morning in layers: hills, clouds and trees</source>
        <translation>Buổi sáng nhiều lớp: đồi, mây và cây</translation>
    </message>
    <message>
        <source>Banner</source>
        <translation>Biểu ngữ</translation>
    </message>
    <message>
        <source>Two scenes for the top of a page</source>
        <translation>Hai cảnh cho phần đầu trang</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Thẻ</translation>
    </message>
    <message>
        <source>A card that follows the width of its page</source>
        <translation>Tấm thẻ co giãn theo chiều rộng của trang</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Trang đầu</translation>
    </message>
</context>
<context>
    <name>WelcomePlugin</name>
    <message>
        <source>There is no main window.</source>
        <translation>Không có cửa sổ chính.</translation>
    </message>
</context>
</TS>
