<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Qt has no catalogue of this language: what its widgets say in our windows. -->
<TS version="2.1" language="vi_VN" sourcelanguage="en_US">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Lưu tất cả</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Có</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Có cho tất &amp;cả</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Không</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Khô&amp;ng cho tất cả</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Hủy bỏ</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Thử lại</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Bỏ qua</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Bỏ thay đổi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Trợ giúp</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Đặt lại</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Khôi phục mặc định</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Làm lại</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cắ&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Chép</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Chép địa chỉ &amp;liên kết</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Dán</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Chọn tất cả</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Làm lại</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cắ&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Chép</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Dán</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Chọn tất cả</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Chọn tất cả</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Tăng</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Giảm</translation>
    </message>
</context>
<context>
    <name>QUndoGroup</name>
    <message>
        <source>Undo %1</source>
        <translation>Hoàn tác %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Hoàn tác</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Làm lại %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Làm lại</translation>
    </message>
</context>
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Đóng thẻ</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Cuộn sang trái</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Cuộn sang phải</translation>
    </message>
</context>
<context>
    <name>QMdiSubWindow</name>
    <message>
        <source>- [%1]</source>
        <translation>- [%1]</translation>
    </message>
    <message>
        <source>%1 - [%2]</source>
        <translation>%1 - [%2]</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Restore Down</source>
        <translation>Thu về cỡ cũ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Khôi phục</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Di chuyển</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Cỡ</translation>
    </message>
    <message>
        <source>Mi&amp;nimize</source>
        <translation>Thu &amp;nhỏ</translation>
    </message>
    <message>
        <source>Ma&amp;ximize</source>
        <translation>&amp;Phóng to</translation>
    </message>
    <message>
        <source>Stay on &amp;Top</source>
        <translation>Luôn ở &amp;trên</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Đóng</translation>
    </message>
</context>
<context>
    <name>QMdiArea</name>
    <message>
        <source>(Untitled)</source>
        <translation>(Chưa đặt tên)</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Tìm trong:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Tiến tới</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Thư mục cha</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Đến thư mục cha</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Tạo thư mục mới</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Tạo một thư mục mới</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Dạng danh sách</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Chuyển sang dạng danh sách</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Dạng chi tiết</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Chuyển sang dạng chi tiết</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Thanh bên</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Danh sách nơi chốn và dấu trang</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Tệp</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Loại tệp:</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Tìm thư mục</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Lưu thành</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Thư mục:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Tê&amp;n tệp:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Mở</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Chọn</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Lưu</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Mọi tệp (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Hiện </translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Không tìm thấy thư mục.
Hãy kiểm tra lại tên thư mục.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 đã tồn tại.
Bạn có muốn thay thế không?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Không tìm thấy tệp.
Hãy kiểm tra lại tên tệp.</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Thư mục mới</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Thư mục &amp;mới</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Xóa</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Bạn có chắc muốn xóa &apos;%1&apos; không?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Không xóa được thư mục.</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Nơi gần đây</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Máy tính</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Ổ đĩa</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Đổi &amp;tên</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Hiện tệp ẩn</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; được chống ghi.
Bạn vẫn muốn xóa?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Thư mục</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Tên</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Cỡ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Loại</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Loại</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ngày sửa</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Máy tính</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Máy tính</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>Xem chi tiết...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Ẩn chi tiết...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Trợ giúp</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Tách ra</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Tách ra hoặc gắn lại bảng</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Đóng bảng</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Cuộn đến đây</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Đầu</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Cuối</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Lên một trang</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Xuống một trang</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Cuộn lên</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Cuộn xuống</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Mép trái</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Mép phải</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Trang trái</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Trang phải</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Cuộn trái</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Cuộn phải</translation>
    </message>
</context>
</TS>
